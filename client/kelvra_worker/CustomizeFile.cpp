#include "client/kelvra_worker/CustomizeFile.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_worker/IniFile.h"

#include <QFileInfo>
#include <QSaveFile>

using kelvra_files::OrdinaryFile;

namespace kelvra_worker {

namespace {

constexpr qint64 maxImageBytes = Q_INT64_C(40) * 1024 * 1024; // the login shows no larger one

const QString cloudLoginKey = QStringLiteral("login/cloud_login");
const QString customImageKey = QStringLiteral("loading/custom_image");
const QString imageKey = QStringLiteral("loading/image");
const QString replaceSuperUserKey = QStringLiteral("recovery/replace_superuser");

const QByteArray defaultFile =
    R"(; Customisation of this client. It is read once, when the client starts; the client does not start while the
; file is damaged or a value in it makes no sense.
; A line that begins with a semicolon is a comment. Delete this file to get it back with its defaults.

[login]
; true offers login with a cloud account beside local login. Default: true
cloud_login=true

[loading]
; true shows an image of your own while the client loads its data. Default: false
custom_image=false
; That image, 860 x 500 pixels. Write / between folders, and put the path in quotes ("...") if it holds a comma or
; a semicolon. A path that does not begin at a root is looked up beside this file. If the file does not exist, the
; built-in image is shown; a folder or a file of more than 40 MiB stops the start. Default: empty
image=

[recovery]
; true lets whoever sits at this computer create a new superuser when the old one has lost its password and every
; way back. The former superuser, the local users and their gestures are then removed, and the audit log says so.
; Default: false
replace_superuser=false
)";

CustomizeInfo defaultRecord()
{
    CustomizeInfo record;
    record.cloudLoginEnabled = true;
    return record;
}

} // namespace

CustomizeFile::CustomizeFile(const QString &filePath)
    : path(filePath)
    , record(defaultRecord())
{
}

bool CustomizeFile::read(QString *error)
{
    IniFile file(path);
    const CustomizeInfo defaults = defaultRecord();
    record.cloudLoginEnabled = file.flag(cloudLoginKey, defaults.cloudLoginEnabled);
    record.customLoadingImageEnabled = file.flag(customImageKey, defaults.customLoadingImageEnabled);
    record.loadingImagePath = file.path(imageKey, defaults.loadingImagePath);
    superUserReplaceable = file.flag(replaceSuperUserKey, false);
    const QString imageProblem =
        record.customLoadingImageEnabled ? OrdinaryFile::problem(record.loadingImagePath, maxImageBytes) : QString();
    if (!imageProblem.isEmpty())
        record.customLoadingImageEnabled = defaults.customLoadingImageEnabled;
    const QString problem = file.problem().isEmpty() ? imageProblem : file.problem();
    if (error)
        *error = problem;
    return problem.isEmpty();
}

bool CustomizeFile::createIfMissing() const
{
    if (QFileInfo::exists(path))
        return true;
    QSaveFile file(path);
    // Flushed first: commit() takes no notice of what does not fit on the disk any more.
    return file.open(QIODevice::WriteOnly | QIODevice::Text) && file.write(defaultFile) == defaultFile.size() &&
           file.flush() && file.commit();
}

} // namespace kelvra_worker
