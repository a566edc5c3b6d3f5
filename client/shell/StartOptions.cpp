#include "client/shell/StartOptions.h"

#include "host/kelvra_worker/SysLanguage.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

using kelvra_worker::SysLanguage;

namespace kelvra_client {

namespace {

const QString helpOption = QStringLiteral("help");
const QString versionOption = QStringLiteral("version");
const QString folderOption = QStringLiteral("data-dir");
const QString languageOption = QStringLiteral("language");
const QString userOption = QStringLiteral("user");
const QString noPhoneOption = QStringLiteral("no-phone");
const QString tourOption = QStringLiteral("tour");

const QString exitCodes =
    QStringLiteral("\n"
                   "Exit status:\n"
                   "  0  after quitting, or after a client that runs on the folder has come to the front\n"
                   "  1  the client cannot run (folder, display, fonts, database), or one that runs on\n"
                   "     the folder could not be brought to the front\n"
                   "  2  wrong options, or no usable password on standard input\n"
                   "  3  --user was not used, as a client runs on the folder: that one has come to the\n"
                   "     front, and nobody was logged in");

QStringList languageList()
{
    QStringList list;
    const QMap<int, QString> names = SysLanguage::_instance().getLanguageNames();
    for (auto name = names.begin(); name != names.end(); ++name)
        list << QStringLiteral("%1 %2").arg(name.key()).arg(name.value());
    return list;
}

/** Empty where the platform has no such folder, which is where the environment names no usable home. */
QString defaultFolder()
{
#ifdef Q_OS_UNIX
    // The toolkit would take the root folder, or one below the folder that the client is started in.
    const QString home = qEnvironmentVariable("HOME");
    const bool isHomeUsable = QDir::isAbsolutePath(home) && QFileInfo(home).isDir();
    if (qEnvironmentVariableIsEmpty("XDG_DATA_HOME") && !isHomeUsable)
        return {};
#endif
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

/** Apart from the options, whose texts are broken into lines at any place. */
QString defaultFolderText()
{
    const QString folder = defaultFolder();
    return QStringLiteral("\nDefault of --data-dir:\n  %1\n")
        .arg(folder.isEmpty() ? QStringLiteral("none, as the environment names no home folder")
                              : QDir::toNativeSeparators(folder));
}

// In English: the language is chosen in the settings of the folder that is named here.
void addOptions(QCommandLineParser *parser)
{
    parser->setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser->setApplicationDescription(QStringLiteral("Desktop client for video management."));
    parser->addOptions({
        {{QStringLiteral("h"), helpOption}, QStringLiteral("Shows this help.")},
        {{QStringLiteral("v"), versionOption}, QStringLiteral("Shows the version.")},
        {folderOption, QStringLiteral("Folder of users, settings and logs; nobody else may be able to write to it."),
         QStringLiteral("DIR"), defaultFolder()},
        {languageOption, QStringLiteral("Language of this run: %1.").arg(languageList().join(QStringLiteral(", "))),
         QStringLiteral("ID")},
        {userOption,
         QStringLiteral("Logs this local user, or this cloud account that has logged in here before, in; the password "
                        "is read from standard input, up to the first line break."),
         QStringLiteral("NAME")},
        {noPhoneOption, QStringLiteral("Does not open the phone of the simulated cloud beside the login.")},
        {tourOption,
         QStringLiteral("Walks through the client on a throw-away data folder and puts pictures and a report into "
                        "DIR."),
         QStringLiteral("DIR")},
    });
}

bool isKnownLanguage(const QString &text)
{
    bool isNumber = false;
    const int id = text.toInt(&isNumber);
    return isNumber && SysLanguage::_instance().getLanguageNames().contains(id);
}

/** Empty, or what is wrong with the values: one is missing, or there is a second. */
QString wrongNumberOfValues(const QCommandLineParser &parser)
{
    for (const QString &option : {folderOption, languageOption, userOption, tourOption}) {
        // An option in the place of the value: the value has been forgotten.
        const QString value = parser.value(option);
        if (parser.values(option).size() > 1 && parser.isSet(option))
            return QStringLiteral("'--%1' is there more than once.").arg(option);
        if (parser.isSet(option) && (value.trimmed().isEmpty() || value.startsWith(QLatin1String("--"))))
            return QStringLiteral("Missing value after '--%1'.").arg(option);
    }
    return {};
}

QString wrongUse(const QCommandLineParser &parser)
{
    QString problem = wrongNumberOfValues(parser);
    if (!problem.isEmpty())
        return problem;
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    if (parser.isSet(tourOption) && parser.isSet(userOption))
        return QStringLiteral("'--tour' and '--user' exclude each other.");
    if (parser.isSet(languageOption) && !isKnownLanguage(parser.value(languageOption)))
        return QStringLiteral("Unknown language '%1'; these are known: %2.")
            .arg(parser.value(languageOption), languageList().join(QStringLiteral(", ")));
    return {};
}

} // namespace

std::optional<StartOptions> StartOptions::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(&parser);
    *error = parser.parse(arguments) ? wrongUse(parser) : parser.errorText();
    if (!error->isEmpty()) {
        *error += QStringLiteral(" 'kelvra_client --help' lists the options.");
        return std::nullopt;
    }

    StartOptions options;
    options.help = parser.isSet(helpOption);
    options.version = parser.isSet(versionOption);
    if (!parser.value(folderOption).isEmpty())
        options.dataFolder = QDir::cleanPath(QDir().absoluteFilePath(parser.value(folderOption)));
    options.user = parser.value(userOption);
    options.noPhone = parser.isSet(noPhoneOption);
    if (parser.isSet(tourOption))
        options.tourFolder = QDir().absoluteFilePath(parser.value(tourOption));
    if (parser.isSet(languageOption))
        options.language = kelvra_worker::Language(parser.value(languageOption).toInt());
    return options;
}

QString StartOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(&parser);
    return parser.helpText() + defaultFolderText() + exitCodes;
}

} // namespace kelvra_client
