#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int tourTimeoutMs = 170000;
constexpr int fewestPictures = 12;
constexpr int fewestColors = 100; // of a picture that shows something
const QSize loginSize(860, 500);  // pixels; the main window is larger

/** A machine without a display: the tour chooses its platform itself. */
QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(variable);
    return environment;
}

int colorsOf(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}

} // namespace

class TestTour : public QObject
{
    Q_OBJECT

private slots:
    void everyStepHolds()
    {
        QTemporaryDir folder;
        const QDir tour(folder.filePath("made by/the tour"));
        const int exitCode = run(tour.path());
        QFile text(tour.filePath("tour.txt"));
        QVERIFY(text.open(QIODevice::ReadOnly));
        QStringList failures;
        const QStringList lines = QString::fromUtf8(text.readAll()).split('\n', Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            if (!line.endsWith("| ok"))
                failures << line;
        }
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join('\n')));
        QVERIFY(lines.size() > fewestPictures);
        QCOMPARE(exitCode, 0);
        checkPictures(tour);
    }

    void refusesWhatIsNoFolder()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(run(file.fileName()), 1);
        QVERIFY2(errors.contains("The folder " + QDir::toNativeSeparators(file.fileName()) + " cannot be made."),
                 qPrintable(errors));
        QCOMPARE(file.size(), 0);
    }

private:
    int run(const QString &folder)
    {
        QProcess program;
        program.setProcessEnvironment(withoutDisplay());
        program.start(KELVRA_CLIENT_PROGRAM, {"--tour", folder});
        const bool ended = program.waitForFinished(tourTimeoutMs);
        errors = QString::fromUtf8(program.readAllStandardError());
        return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }

    static void checkPictures(const QDir &tour)
    {
        const QStringList names = tour.entryList({"*.png"}, QDir::Files, QDir::Name);
        QVERIFY2(names.size() >= fewestPictures, qPrintable(names.join(' ')));
        QImage before;
        for (int index = 0; index < names.size(); ++index) {
            const QString &name = names.at(index);
            QVERIFY2(name.startsWith(QString("%1-").arg(index + 1, 2, 10, QLatin1Char('0'))), qPrintable(name));
            const QImage picture(tour.filePath(name));
            QVERIFY2(picture.size().boundedTo(loginSize) == loginSize, qPrintable(name));
            QVERIFY2(colorsOf(picture) >= fewestColors, qPrintable(name));
            QVERIFY2(picture != before, qPrintable(name));
            before = picture;
        }
    }

    QString errors;
};

QTEST_GUILESS_MAIN(TestTour)
#include "tst_tour.moc"
