#include "host/kelvra_base/ModuleInitialization.h"

#include <QApplication>
#include <QFile>
#include <QVector>

#include <algorithm>

namespace kelvra_base {

namespace {

/** What the application's style sheet is made of: the shell's own, then each module's in the order of loading. */
class StyleSheets
{
public:
    void load(const QString &path, const QString &text)
    {
        // Whatever is set but not by us is the shell's.
        if (qApp->styleSheet() != composed)
            base = qApp->styleSheet();
        const auto known =
            std::find_if(blocks.begin(), blocks.end(), [&path](const Block &block) { return block.path == path; });
        if (known == blocks.end())
            blocks.append({path, text});
        else
            known->text = text;
        apply();
    }

private:
    struct Block
    {
        QString path;
        QString text;
    };

    void apply()
    {
        composed = base;
        for (const Block &block : qAsConst(blocks))
            composed += QLatin1Char('\n') + block.text;
        // Setting a sheet polishes every widget again, which is not cheap.
        if (qApp->styleSheet() != composed)
            qApp->setStyleSheet(composed);
    }

    QString base;
    QString composed;
    QVector<Block> blocks;
};

} // namespace

ModuleInitialization::ModuleInitialization(QObject *parent)
    : QObject(parent)
{
}

ModuleInitialization::~ModuleInitialization() = default;

void ModuleInitialization::moduleInit() {}

void ModuleInitialization::init() {}

void ModuleInitialization::recoveryToInitialState() {}

void ModuleInitialization::loadStyleSheet(const QString &path)
{
    static StyleSheets sheets;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Style sheet %s cannot be read: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
        return;
    }
    sheets.load(path, QString::fromUtf8(file.readAll()));
}

} // namespace kelvra_base
