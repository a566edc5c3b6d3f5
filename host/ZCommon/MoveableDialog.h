#pragma once

#include "host/Export.h"

#include <QColor>
#include <QDialog>
#include <QPoint>

#include <memory>

namespace ZCOMMON {

/**
 * A frameless dialog that the user moves by dragging any part of it that does not take the press for itself.
 *
 * Child widgets that leave a press unhandled hand it up to the dialog, so a body that fills the dialog stays
 * draggable. The module derives its login dialog from it.
 */
class ZCOMMON_EXPORT MoveableDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param parent     owner, may be null
     * @param title      window title, may be empty
     * @param background colour that fills the dialog behind its children
     */
    MoveableDialog(QWidget *parent, const QString &title, const QColor &background);
    ~MoveableDialog() override;

    /** Where the dialog's top left corner is put when it is first shown, in global pixels. */
    void setDefaultPos(const QPoint &pos);

protected:
    /** The drag with the left button; a dialog that fills the screen stays where it is. */
    ///@{
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    ///@}
    /** Fills the dialog with the background colour given and frames it. */
    void paintEvent(QPaintEvent *event) override;
    /** Puts the dialog at its default position the first time, and nowhere later. */
    void showEvent(QShowEvent *event) override;
    /** Ends a drag when the dialog is minimised, maximised or restored. */
    void changeEvent(QEvent *event) override;
    /** Ends a drag when the dialog is hidden or blocked, and keeps Return from pressing a button by default. */
    bool event(QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(MoveableDialog)
};

} // namespace ZCOMMON
