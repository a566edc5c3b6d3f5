#include "client/shell/ClientStyle.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace kelvra_client {

namespace {

constexpr int fontPixels = 13;

const QColor windowColor(0x14, 0x1d, 0x30);
const QColor fieldColor(0x0e, 0x16, 0x23);
const QColor alternateColor(0x12, 0x1b, 0x2c);
const QColor buttonColor(0x1e, 0x2a, 0x42);
const QColor textColor(0xcc, 0xd3, 0xdd);
const QColor dimColor(0x85, 0x8f, 0xa2);
const QColor disabledColor(0x59, 0x64, 0x78);
const QColor disabledFillColor(0x28, 0x35, 0x4d);
const QColor accentColor(0x2c, 0x7d, 0xce);
const QColor selectionColor(0x29, 0x78, 0xc7); // the accent, darker: white is legible on it
const QColor tipColor(0x1b, 0x26, 0x40);

QFont createFont()
{
    const QString family = QStringLiteral("microsoft yahei");
    // Asked for one by one when a text is drawn, so no list of installed fonts is needed here.
    QFont::insertSubstitutions(family, {QStringLiteral("Open Sans"), QStringLiteral("WenQuanYi Micro Hei"),
                                        QStringLiteral("Noto Sans CJK SC"), QStringLiteral("DejaVu Sans")});
    QFont font(family);
    font.setPixelSize(fontPixels);
    return font;
}

QPalette createPalette()
{
    QPalette palette(buttonColor, windowColor);
    palette.setColor(QPalette::WindowText, textColor);
    palette.setColor(QPalette::Base, fieldColor);
    palette.setColor(QPalette::AlternateBase, alternateColor);
    palette.setColor(QPalette::Text, textColor);
    palette.setColor(QPalette::PlaceholderText, dimColor);
    palette.setColor(QPalette::ButtonText, textColor);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, selectionColor);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accentColor);
    palette.setColor(QPalette::LinkVisited, accentColor);
    palette.setColor(QPalette::ToolTipBase, tipColor);
    palette.setColor(QPalette::ToolTipText, textColor);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, disabledColor);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, disabledFillColor);
    return palette;
}

} // namespace

void ClientStyle::install(QApplication &application)
{
    const QPalette palette = createPalette();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);

    QFile sheet(QStringLiteral(":/style/kelvra_client.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    else
        qWarning("The client's style sheet is missing: %s", qUtf8Printable(sheet.errorString()));

    // Last: a style sheet brings back the fonts that the system has for lists, menus and the like, which this takes
    // away.
    QApplication::setFont(createFont());
    QToolTip::setFont(QApplication::font());
}

bool ClientStyle::hasFonts()
{
    // Without fonts each letter is drawn as a box. A list of families would name some all the same.
    const bool drawsLetters = QFontMetrics(QApplication::font()).inFont(QLatin1Char('A'));
    return drawsLetters || QGuiApplication::platformName() == QStringLiteral("minimal");
}

} // namespace kelvra_client
