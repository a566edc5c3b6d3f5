#pragma once

#include "host/Export.h"

#include <QDialog>

#include <memory>

namespace kelvra_base {

/**
 * A dialog with the client's frame: a title bar with the title and the window buttons, painted over the dialog's
 * top 45 pixels, by which the user can drag it. A form set up on the dialog keeps its own top margin clear of it.
 */
class KELVRA_BASE_EXPORT CommonDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param parent       owner, may be null
     * @param resizeFlag   non-zero: the frame has minimise and maximise buttons
     * @param closeBtFlag  non-zero: the frame has a close button
     */
    CommonDialog(QWidget *parent, int resizeFlag, int closeBtFlag);
    ~CommonDialog() override;

    /** The text of the title bar and of the window. */
    void setTitle(const QString &title);

    /** What closing the frame does. The base rejects the dialog. */
    virtual void quitSystem();

public slots:
    /** Calls quitSystem(). */
    virtual void slotCloseBtClicked();
    /** Maximises (true) or restores (false) the dialog. */
    virtual void slotMaximizeBtClicked(bool maximize);
    /** Minimises the dialog. */
    virtual void slotMinimizeBtClicked();

protected:
    /** The drag by the title bar; a double click on it maximises and restores where the frame has those buttons. */
    ///@{
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    ///@}
    /** Draws the title bar and the frame over the dialog's ground. */
    void paintEvent(QPaintEvent *event) override;
    /** Keeps the window buttons in the upper right corner. */
    void resizeEvent(QResizeEvent *event) override;
    /** Takes Escape, and a close by the window system, to slotCloseBtClicked(). */
    bool event(QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(CommonDialog)
};

} // namespace kelvra_base
