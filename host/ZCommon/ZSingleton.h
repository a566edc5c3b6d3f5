#pragma once

/**
 * @file
 * Objects that exist once in a process, whichever library asks, and the macros by which a class becomes one.
 */

namespace ZCOMMON {

/**
 * Access to the one object of T in the process.
 *
 * `_instance()` is declared here and defined once per class, as a specialisation in the library that owns T.
 * A definition in this header would give each shared library an object of its own: always on Windows, and
 * wherever symbols are hidden.
 *
 * A class takes part in three steps: its header declares the class, then `ZSINGLETON_DECLARE(EXPORT_MACRO, T)`
 * outside every namespace, both before the class is defined (an exported class makes its base at once); the class
 * derives from `ZSingleton<T>` and befriends it (its constructor is not public); and one source of the owning
 * library holds `ZSINGLETON_DEFINE(T)` (or a specialisation of its own where construction needs
 * more than the default constructor), also outside every namespace.
 */
template <typename T>
class ZSingleton
{
public:
    /** The one object of T, created by the first call; it lives until its library is unloaded. GUI thread only. */
    static T &_instance();

    ZSingleton(const ZSingleton &) = delete;
    ZSingleton &operator=(const ZSingleton &) = delete;

protected:
    ZSingleton() = default;
    ~ZSingleton() = default;
};

} // namespace ZCOMMON

/** Promises that `ZSingleton<T>::_instance()` is defined in the library behind EXPORT (may be empty). */
#define ZSINGLETON_DECLARE(EXPORT, ...)                                                                                \
    template <>                                                                                                        \
    EXPORT __VA_ARGS__ &ZCOMMON::ZSingleton<__VA_ARGS__>::_instance();

/** Defines `ZSingleton<T>::_instance()` with an object built by T's default constructor. */
#define ZSINGLETON_DEFINE(...)                                                                                         \
    template <>                                                                                                        \
    __VA_ARGS__ &ZCOMMON::ZSingleton<__VA_ARGS__>::_instance()                                                         \
    {                                                                                                                  \
        static __VA_ARGS__ instance;                                                                                   \
        return instance;                                                                                               \
    }
