#include "host/kelvra_worker/SysLanguage.h"

#include "client/kelvra_worker/Languages.h"
#include "client/kelvra_worker/WorkerKeys.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/UiSettings.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <vector>

ZSINGLETON_DEFINE(kelvra_worker::SysLanguage)

namespace kelvra_worker {

namespace {

// Each is followed by the code of a language.
const QString ownTranslations[] = {QStringLiteral(":/translations/kelvra_login_"),
                                   QStringLiteral(":/translations/kelvra_client_")};
const QString toolkitTranslation = QStringLiteral("qtbase_");

} // namespace

class SysLanguage::Private
{
public:
    bool install(const QString &file, const QString &folder = QString());
    void installTranslations(const QString &code);

    Language language = english;
    std::vector<std::unique_ptr<QTranslator>> translators; ///< a translator that dies leaves the application
};

bool SysLanguage::Private::install(const QString &file, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder))
        return false;
    QCoreApplication::installTranslator(translator.get());
    translators.push_back(std::move(translator));
    return true;
}

void SysLanguage::Private::installTranslations(const QString &code)
{
    // The toolkit's own texts come first, since the translator installed last is asked first; it may be absent.
    install(toolkitTranslation + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &file : ownTranslations)
        if (!install(file + code))
            qWarning("The translation %s%s cannot be loaded.", qUtf8Printable(file), qUtf8Printable(code));
}

SysLanguage::SysLanguage()
    : d(std::make_unique<Private>())
{
}

SysLanguage::~SysLanguage() = default;

Language SysLanguage::getLanguage() const
{
    return d->language;
}

QMap<int, QString> SysLanguage::getLanguageNames() const
{
    QMap<int, QString> names;
    for (const Languages::Entry &entry : Languages::all())
        names.insert(entry.id, entry.name);
    return names;
}

void SysLanguage::setLanguage(Language language, bool save)
{
    const Languages::Entry *entry = Languages::find(language);
    if (!entry)
        return;
    if (save)
        UiSettings::_instance().setValue(languageKey, int(language));
    if (language == d->language)
        return;
    d->language = language;
    d->translators.clear();
    if (language != english)
        d->installTranslations(entry->code);
    DictDef::_instance().retranslate();
}

} // namespace kelvra_worker
