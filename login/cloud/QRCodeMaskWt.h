#pragma once

#include <QBrush>
#include <QWidget>

namespace kelvra_login {

/** Lies over a QR code that is no longer valid. It lets a quarter of the code shine through. */
class QRCodeMaskWt : public QWidget
{
    Q_OBJECT

public:
    explicit QRCodeMaskWt(QWidget *parent);

    /** What the mask is painted with, nothing at first; call update() after a change. */
    QBrush brush;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace kelvra_login
