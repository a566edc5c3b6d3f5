#pragma once

class QApplication;

namespace kelvra_client {

/** The client's look: style, font, colours and the style sheet that its modules add theirs to. */
class ClientStyle
{
public:
    ClientStyle() = delete;

    /** Dresses `application`; to be called before the first widget is made and before a module is started. */
    static void install(QApplication &application);

    /** Whether texts can be drawn; true as well where the platform draws none. */
    static bool hasFonts();
};

} // namespace kelvra_client
