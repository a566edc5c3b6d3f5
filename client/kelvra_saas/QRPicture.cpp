#include "client/kelvra_saas/QRPicture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <qrencode.h>

#include <memory>

namespace kelvra_saas {

namespace {

constexpr int pictureSide = 178; // pixels, the size at which the login form shows it
constexpr int quietModules = 4;
constexpr int smallestVersion = 4; // its 33 modules fill both the form's 178 pixels and a panel's own 220 best

struct FreeCode
{
    void operator()(QRcode *code) const { QRcode_free(code); }
};

QImage draw(const QRcode &code)
{
    const int modules = code.width + 2 * quietModules;
    const int pixels = qMax(1, pictureSide / modules);
    const int side = qMax(pictureSide, modules * pixels);
    const int margin = (side - code.width * pixels) / 2;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int row = 0; row < code.width; ++row) {
        for (int column = 0; column < code.width; ++column) {
            if (code.data[row * code.width + column] & 1)
                painter.fillRect(margin + column * pixels, margin + row * pixels, pixels, pixels, Qt::black);
        }
    }
    return image;
}

} // namespace

QString qrPicture(const QString &content)
{
    const std::unique_ptr<QRcode, FreeCode> code(
        QRcode_encodeString8bit(content.toUtf8().constData(), smallestVersion, QR_ECLEVEL_M));
    QByteArray data;
    QBuffer buffer(&data);
    if (!code || !draw(*code).convertToFormat(QImage::Format_Mono, Qt::ThresholdDither).save(&buffer, "PNG"))
        return {};
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(data.toBase64());
}

} // namespace kelvra_saas
