#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
constexpr bool isWindows = true;
#else
constexpr bool isWindows = false;
#endif

// On the stand-in screen of the other systems the pointer is where a test puts it, and nowhere else.
constexpr char realPointer[] = "Here the pointer is a real one.";
