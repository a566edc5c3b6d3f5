#include "client/kelvra_worker/CustomizeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace kelvra_worker {

namespace {

const QString cloudLoginKey = QStringLiteral("login/cloud_login");
const QString customImageKey = QStringLiteral("loading/custom_image");
const QString imageKey = QStringLiteral("loading/image");

const char *const defaultFile = R"(; Customisation of this client. It is read once, when the client starts.
; A line that begins with a semicolon is a comment. Delete this file to get it back with its defaults.

[login]
; true offers login with a cloud account beside local login. The cloud pages come with a later version of the
; client; until then leave this off. Default: false
cloud_login=false

[loading]
; true shows an image of your own while the client loads its data. Default: false
custom_image=false
; That image, 860 x 500 pixels. Write / between folders, and put the path in quotes ("...") if it holds a comma or
; a semicolon. A path that does not begin at a root is looked up beside this file. If the file does not exist, the
; built-in image is shown. Default: empty
image=
)";

void warnAboutValue(const QString &key, const QString &path)
{
    qWarning("The value of %s in %s cannot be read; the default is used.", qUtf8Printable(key), qUtf8Printable(path));
}

bool readFlag(const QSettings &file, const QString &key, bool byDefault)
{
    if (!file.contains(key))
        return byDefault;
    const QString text = file.value(key).toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text != QLatin1String("false") && text != QLatin1String("0")) {
        warnAboutValue(key, file.fileName());
        return byDefault;
    }
    return false;
}

QString readPath(const QSettings &file, const QString &key, const QString &byDefault)
{
    const QVariant value = file.value(key, byDefault);
    // An unquoted comma makes a list of it.
    if (value.type() != QVariant::String) {
        warnAboutValue(key, file.fileName());
        return byDefault;
    }
    const QString image = value.toString();
    return image.isEmpty() ? image : QFileInfo(file.fileName()).dir().absoluteFilePath(image);
}

} // namespace

CustomizeFile::CustomizeFile(const QString &filePath)
    : path(filePath)
{
}

CustomizeInfo CustomizeFile::read() const
{
    CustomizeInfo info;
    if (!QFileInfo::exists(path)) {
        create();
        return info;
    }
    QSettings file(path, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    if (file.status() != QSettings::NoError) {
        qWarning("The customisation %s is damaged or not readable; the defaults are used for %s, %s and %s.",
                 qUtf8Printable(path), qUtf8Printable(cloudLoginKey), qUtf8Printable(customImageKey),
                 qUtf8Printable(imageKey));
        return info;
    }
    info.cloudLoginEnabled = readFlag(file, cloudLoginKey, info.cloudLoginEnabled);
    info.customLoadingImageEnabled = readFlag(file, customImageKey, info.customLoadingImageEnabled);
    info.loadingImagePath = readPath(file, imageKey, info.loadingImagePath);
    return info;
}

void CustomizeFile::create() const
{
    QFile file(path);
    // NewOnly: a file that somebody has put there meanwhile is theirs.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Text) || file.write(defaultFile) < 0)
        qWarning("The customisation %s cannot be created: %s.", qUtf8Printable(path),
                 qUtf8Printable(file.errorString()));
}

} // namespace kelvra_worker
