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

QStringList languageList()
{
    QStringList list;
    const QMap<int, QString> names = SysLanguage::_instance().getLanguageNames();
    for (auto name = names.begin(); name != names.end(); ++name)
        list << QStringLiteral("%1 %2").arg(name.key()).arg(name.value());
    return list;
}

// In English: the language is chosen in the settings of the folder that is named here.
void addOptions(QCommandLineParser *parser)
{
    parser->setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser->setApplicationDescription(QStringLiteral("Desktop client for video management."));
    parser->addOptions({
        {{QStringLiteral("h"), helpOption}, QStringLiteral("Shows this help.")},
        {{QStringLiteral("v"), versionOption}, QStringLiteral("Shows the version.")},
        {folderOption, QStringLiteral("Folder of users, settings and logs."), QStringLiteral("DIR"),
         QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)},
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

/** Empty, or what is wrong with the values that have to be there. */
QString missingValue(const QCommandLineParser &parser)
{
    for (const QString &option : {folderOption, languageOption, userOption, tourOption}) {
        // An option in the place of the value: the value has been forgotten.
        const QString value = parser.value(option);
        if (parser.isSet(option) && (value.trimmed().isEmpty() || value.startsWith(QLatin1String("--"))))
            return QStringLiteral("Missing value after '--%1'.").arg(option);
    }
    return {};
}

QString wrongUse(const QCommandLineParser &parser)
{
    QString missing = missingValue(parser);
    if (!missing.isEmpty())
        return missing;
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    if (parser.isSet(tourOption) && parser.isSet(userOption))
        return QStringLiteral("'--tour' and '--user' exclude each other.");
    return {};
}

} // namespace

std::optional<StartOptions> StartOptions::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(&parser);
    *error = parser.parse(arguments) ? wrongUse(parser) : parser.errorText();
    if (!error->isEmpty())
        return std::nullopt;

    StartOptions options;
    options.help = parser.isSet(helpOption);
    options.version = parser.isSet(versionOption);
    options.dataFolder = QDir::cleanPath(QDir().absoluteFilePath(parser.value(folderOption)));
    options.user = parser.value(userOption);
    options.noPhone = parser.isSet(noPhoneOption);
    if (parser.isSet(tourOption))
        options.tourFolder = QDir().absoluteFilePath(parser.value(tourOption));
    if (parser.isSet(languageOption)) {
        bool isNumber = false;
        const int id = parser.value(languageOption).toInt(&isNumber);
        if (!isNumber || !SysLanguage::_instance().getLanguageNames().contains(id)) {
            *error = QStringLiteral("Unknown language '%1'; these are known: %2.")
                         .arg(parser.value(languageOption), languageList().join(QStringLiteral(", ")));
            return std::nullopt;
        }
        options.language = kelvra_worker::Language(id);
    }
    return options;
}

QString StartOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(&parser);
    return parser.helpText();
}

} // namespace kelvra_client
