#pragma once

#include <QtGlobal>

/**
 * @file
 * Export macros of the host's six libraries.
 *
 * A library defines `<NAME>_LIBRARY` while its own sources are compiled; everybody else imports from it.
 * `KELVRA_HOST_STATIC` switches all six off, for a program that links the host's objects directly.
 */

/**
 * @def KELVRA_HOST_IMPORT
 * What the six macros stand for outside their own libraries: an import, or nothing in a static build.
 */
#if defined(KELVRA_HOST_STATIC)
#    define KELVRA_HOST_IMPORT
#else
#    define KELVRA_HOST_IMPORT Q_DECL_IMPORT
#endif

/**
 * @def ZCOMMON_EXPORT
 * Marks what the library `ZCommon` exports.
 */
#if defined(ZCOMMON_LIBRARY)
#    define ZCOMMON_EXPORT Q_DECL_EXPORT
#else
#    define ZCOMMON_EXPORT KELVRA_HOST_IMPORT
#endif

/**
 * @def KELVRA_BASE_EXPORT
 * Marks what the library `kelvra_base` exports.
 */
#if defined(KELVRA_BASE_LIBRARY)
#    define KELVRA_BASE_EXPORT Q_DECL_EXPORT
#else
#    define KELVRA_BASE_EXPORT KELVRA_HOST_IMPORT
#endif

/**
 * @def KELVRA_WORKER_EXPORT
 * Marks what the library `kelvra_worker` exports.
 */
#if defined(KELVRA_WORKER_LIBRARY)
#    define KELVRA_WORKER_EXPORT Q_DECL_EXPORT
#else
#    define KELVRA_WORKER_EXPORT KELVRA_HOST_IMPORT
#endif

/**
 * @def KELVRA_DATA_EXPORT
 * Marks what the library `kelvra_data` exports.
 */
#if defined(KELVRA_DATA_LIBRARY)
#    define KELVRA_DATA_EXPORT Q_DECL_EXPORT
#else
#    define KELVRA_DATA_EXPORT KELVRA_HOST_IMPORT
#endif

/**
 * @def KELVRA_SAAS_EXPORT
 * Marks what the library `kelvra_saas` exports.
 */
#if defined(KELVRA_SAAS_LIBRARY)
#    define KELVRA_SAAS_EXPORT Q_DECL_EXPORT
#else
#    define KELVRA_SAAS_EXPORT KELVRA_HOST_IMPORT
#endif

/**
 * @def KELVRA_CONTACT_EXPORT
 * Marks what the library `kelvra_contact` exports.
 */
#if defined(KELVRA_CONTACT_LIBRARY)
#    define KELVRA_CONTACT_EXPORT Q_DECL_EXPORT
#else
#    define KELVRA_CONTACT_EXPORT KELVRA_HOST_IMPORT
#endif
