#include "host/kelvra_worker/DictDef.h"

#include <QCoreApplication>

#include <iterator>

ZSINGLETON_DEFINE(kelvra_worker::DictDef)

namespace kelvra_worker {

namespace {

// In the order of DictDef::AlertTitle.
const char *const titleTexts[] = {
    QT_TRANSLATE_NOOP("DictDef", "Operation failed"),
    QT_TRANSLATE_NOOP("DictDef", "Warning"),
    QT_TRANSLATE_NOOP("DictDef", "Information"),
};

// The index is the id that is stored with the answers: append, never reorder.
const char *const questionTexts[] = {
    QT_TRANSLATE_NOOP("DictDef", "Who was your favourite teacher?"),
    QT_TRANSLATE_NOOP("DictDef", "What is your mother's name?"),
    QT_TRANSLATE_NOOP("DictDef", "What is your father's name?"),
    QT_TRANSLATE_NOOP("DictDef", "In which town were you born?"),
    QT_TRANSLATE_NOOP("DictDef", "Which was your first school?"),
    QT_TRANSLATE_NOOP("DictDef", "Who was your best childhood friend?"),
    QT_TRANSLATE_NOOP("DictDef", "What was your first pet's name?"),
    QT_TRANSLATE_NOOP("DictDef", "What is your favourite book?"),
    QT_TRANSLATE_NOOP("DictDef", "What is your favourite film?"),
    QT_TRANSLATE_NOOP("DictDef", "What is your favourite dish?"),
    QT_TRANSLATE_NOOP("DictDef", "What make was your first car?"),
    QT_TRANSLATE_NOOP("DictDef", "What was your first job?"),
};

QMap<int, QString> translated(const char *const *texts, int count)
{
    QMap<int, QString> table;
    for (int id = 0; id < count; ++id)
        table.insert(id, QCoreApplication::translate("DictDef", texts[id]));
    return table;
}

} // namespace

class DictDef::Private
{
public:
    QMap<int, QString> titles;
    QMap<int, QString> questions;
};

DictDef::DictDef()
    : d(std::make_unique<Private>())
{
    retranslate();
}

DictDef::~DictDef() = default;

void DictDef::retranslate()
{
    d->titles = translated(titleTexts, int(std::size(titleTexts)));
    d->questions = translated(questionTexts, int(std::size(questionTexts)));
}

QString DictDef::alertTitle(AlertTitle title) const
{
    return d->titles.value(title);
}

const QMap<int, QString> &DictDef::securityQuestions() const
{
    return d->questions;
}

} // namespace kelvra_worker
