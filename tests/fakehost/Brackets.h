#pragma once

#include "FakeHost.h"

#include <QCoreApplication>
#include <QTranslator>

/** A language, in force while the object lives, in which every text of the module stands in brackets. */
class Brackets : public QTranslator
{
public:
    Brackets()
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::sendPostedEvents(); // the windows hear of it
    }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (!QByteArray(context).startsWith("kelvra_login::"))
            return QString();
        FakeHost::get().record("translate", {text});
        return QString("[%1]").arg(text);
    }
};
