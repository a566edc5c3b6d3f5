#pragma once

#include <QtGlobal>

/**
 * @file
 * Export macro of the module: KELVRA_LOGIN_LIBRARY while it is compiled, KELVRA_LOGIN_STATIC for a program that
 * links its objects directly.
 */

/**
 * @def KELVRA_LOGIN_EXPORT
 * Marks what the module exports.
 */
#if defined(KELVRA_LOGIN_LIBRARY)
#    define KELVRA_LOGIN_EXPORT Q_DECL_EXPORT
#elif defined(KELVRA_LOGIN_STATIC)
#    define KELVRA_LOGIN_EXPORT
#else
#    define KELVRA_LOGIN_EXPORT Q_DECL_IMPORT
#endif
