#pragma once

#include <QDialog>
#include <QPixmap>

/** What the login is compared with: an empty dialog of its size with one picture behind it. */
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PictureDialog(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap picture;
};
