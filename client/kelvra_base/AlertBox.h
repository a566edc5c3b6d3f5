#pragma once

#include "host/Export.h"
#include "host/kelvra_base/CommonDialog.h"
#include "host/kelvra_base/ZMessageBox.h"

class QLabel;
class QPushButton;

namespace kelvra_base {

/**
 * A modal alert in the client's frame: an icon, a text and one or two buttons.
 *
 * Return and Enter press "OK" (or the button that has the focus), Escape and the frame press "Cancel", or the
 * only button. The text is plain, whatever it contains. `ask()` is all that most callers need; one who opens
 * the box otherwise creates it on the heap and guards the pointer, as it goes with its parent.
 */
class KELVRA_BASE_EXPORT AlertBox : public CommonDialog
{
    Q_OBJECT

public:
    enum Icon { Information, Warning, Error };

    /** `buttons` is a sum of MessageBoxButton values; with neither the box offers "OK". */
    AlertBox(QWidget *parent, Icon icon, const QString &title, const QString &text, int buttons = OkButton);
    ~AlertBox() override;

    /** From now, after how many seconds the box closes as by Escape. */
    void closeAfter(int seconds);

    /** The button that was pressed; until then the one that closing the frame presses. */
    MessageBoxButton answer() const;

    /**
     * Opens a box, waits in an event loop of its own and returns its answer. `seconds` above 0: closes by itself
     * after that time. The parent may be destroyed meanwhile; that counts as closing.
     */
    static MessageBoxButton ask(QWidget *parent, Icon icon, const QString &title, const QString &text,
                                int buttons = OkButton, int seconds = 0);

    void quitSystem() override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpLayout(Icon icon, const QString &text);
    void createButtons(int buttons);
    void retranslateUi();

    QPushButton *okBt = nullptr;
    QPushButton *cancelBt = nullptr;
    MessageBoxButton pressed;
};

} // namespace kelvra_base
