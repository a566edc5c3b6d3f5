#include "singletons/Probe.h"

#include <QLibrary>
#include <QtTest>

/** Singletons are one per process: the program and two libraries loaded later must see the same objects. */
class TestSingletons : public QObject
{
    Q_OBJECT

private slots:
    void everyLibrarySeesTheSameObjects()
    {
        const QVector<const void *> own = singletonAddresses();
        QCOMPARE(QSet<const void *>(own.begin(), own.end()).size(), own.size());
        for (const QString &name : {QStringLiteral("singletons_probe_a"), QStringLiteral("singletons_probe_b")}) {
            QLibrary library(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name);
            QVERIFY2(library.load(), qPrintable(library.errorString()));
            const auto probe = reinterpret_cast<void (*)(QVector<const void *> *)>(library.resolve("probeSingletons"));
            QVERIFY(probe);
            QVector<const void *> seen;
            probe(&seen);
            QCOMPARE(seen, own);
        }
    }
};

QTEST_MAIN(TestSingletons)
#include "tst_singletons.moc"
