#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

constexpr int tourTimeoutMs = 840000; // for a busy machine; the tour itself stops a program that hangs
constexpr int fewestPictures = 12;
constexpr int fewestColors = 100; // of a picture that shows something

class TestTour : public QObject
{
    Q_OBJECT

private slots:
    void everyStepHolds()
    {
        const QTemporaryDir folder;
        const QDir tour(folder.filePath("made by/the tour"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(variable); // the tour chooses its platform itself
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(KELVRA_CLIENT_PROGRAM, {"--tour", tour.path()});
        const bool ended = program.waitForFinished(tourTimeoutMs);
        QFile text(tour.filePath("tour.txt"));
        QVERIFY(text.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList lines = QString::fromUtf8(text.readAll()).split('\n', Qt::SkipEmptyParts);
        const QStringList failures = lines.filter(QRegularExpression("^(?!.*\\| ok$)"));
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join('\n')));
        QVERIFY(lines.size() > fewestPictures && ended && program.exitStatus() == QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);

        const QStringList names = tour.entryList({"*.png"}, QDir::Files, QDir::Name);
        QVERIFY2(names.size() >= fewestPictures, qPrintable(names.join(' ')));
        QImage before;
        for (int index = 0; index < names.size(); ++index) {
            const QString &name = names.at(index);
            QVERIFY2(name.startsWith(QString("%1-").arg(index + 1, 2, 10, QLatin1Char('0'))), qPrintable(name));
            const QImage picture(tour.filePath(name));
            QVERIFY2(picture.width() >= 860 && picture.height() >= 500, qPrintable(name)); // as large as the login
            QSet<QRgb> colors;
            for (int pixel = 0; pixel < picture.width() * picture.height(); ++pixel)
                colors.insert(picture.pixel(pixel % picture.width(), pixel / picture.width()));
            QVERIFY2(colors.size() >= fewestColors && picture != before, qPrintable(name));
            before = picture;
        }
    }
};

QTEST_GUILESS_MAIN(TestTour)
#include "tst_tour.moc"
