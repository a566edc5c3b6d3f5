#pragma once

#include <QtGlobal>

namespace kelvra_client {

/**
 * While it lives, an application object that finds no display ends the process with a sentence and exit code 1; the
 * toolkit would abort it. One at a time, around the construction of the application object.
 */
class DisplayWatch
{
public:
    DisplayWatch();
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch &) = delete;
    DisplayWatch &operator=(const DisplayWatch &) = delete;

    /** Whether the environment names a display; always true where a desktop goes without saying. */
    static bool isDisplayNamed();

    /** The sentence and the exit code for a start without one. */
    static int complain();
};

} // namespace kelvra_client
