#include "client/kelvra_worker/Languages.h"

#include <QLocale>

#include <algorithm>

namespace kelvra_worker {

const std::vector<Languages::Entry> &Languages::all()
{
    // A new one has its code in client/shell/CMakeLists.txt, too.
    static const std::vector<Entry> entries = {
        {english, QStringLiteral("en"), QStringLiteral("English")},
        {Language(1), QStringLiteral("zh_CN"), QStringLiteral("简体中文")},
        {Language(2), QStringLiteral("de"), QStringLiteral("Deutsch")},
        {Language(3), QStringLiteral("es"), QStringLiteral("Español")},
        {Language(4), QStringLiteral("fr"), QStringLiteral("Français")},
        {Language(5), QStringLiteral("ru"), QStringLiteral("Русский")},
        {Language(6), QStringLiteral("ja"), QStringLiteral("日本語")},
    };
    return entries;
}

const Languages::Entry *Languages::find(Language id)
{
    const auto found = std::find_if(all().begin(), all().end(), [id](const Entry &entry) { return entry.id == id; });
    return found == all().end() ? nullptr : &*found;
}

Language Languages::forLocale(const QString &locale)
{
    // Countries share a language; where they write it in another script, as in "zh_TW", it is another one here.
    const QLocale wanted(locale);
    const auto found = std::find_if(all().begin(), all().end(), [&wanted](const Entry &entry) {
        const QLocale own(entry.code);
        return own.language() == wanted.language() && own.script() == wanted.script();
    });
    return found == all().end() ? english : found->id;
}

} // namespace kelvra_worker
