#include "host/kelvra_worker/SysLanguage.h"

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

const QString ownTranslations[] = {QStringLiteral(":/translations/kelvra_login_zh_CN.qm"),
                                   QStringLiteral(":/translations/kelvra_client_zh_CN.qm")};
const QString toolkitTranslation = QStringLiteral("qtbase_zh_CN");

} // namespace

class SysLanguage::Private
{
public:
    bool install(const QString &file, const QString &folder = QString());
    void installChinese();

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

void SysLanguage::Private::installChinese()
{
    // The toolkit's own texts come first, since the translator installed last is asked first; it may be absent.
    install(toolkitTranslation, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &file : ownTranslations)
        if (!install(file))
            qWarning("The translation %s cannot be loaded.", qUtf8Printable(file));
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
    return {{english, QStringLiteral("English")}, {chinese, QStringLiteral("简体中文")}};
}

void SysLanguage::setLanguage(Language language, bool save)
{
    if (!getLanguageNames().contains(language))
        return;
    if (save)
        UiSettings::_instance().setValue(languageKey, int(language));
    if (language == d->language)
        return;
    d->language = language;
    d->translators.clear();
    if (language == chinese)
        d->installChinese();
    DictDef::_instance().retranslate();
}

} // namespace kelvra_worker
