// Random input for what the client reads from files and takes from the mouse: fuzz [TARGET|all [COUNT [SEED]]]
#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/Vault.h"
#include "client/kelvra_saas/AccountsFile.h"
#include "client/kelvra_worker/CustomizeFile.h"
#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_data/UserData.h"
#include "login/frame/LoginWorker.h"
#include "login/gesture/GesturePanel.h"
#include "login/gesture/GesturePoint.h"
#include "tests/DataFolderTest.h"
#include "tests/VirtualClock.h"

#include <QtWidgets>

using namespace kelvra_login;
using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_data::Vault;

namespace {

constexpr unsigned hangSeconds = 60;
QString chosenFile;

class Fuzz : DataFolderTest
{
public:
    Fuzz(int howMany, int seed)
        : count(howMany)
        , random(quint32(seed))
    {
        // In memory where there is a place for it: a million files are written.
        const QString memory = QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath();
        dir = std::make_unique<QTemporaryDir>(memory + "/fuzz-XXXXXX");
    }

    void credentials()
    {
        QTimer reader; // answers every alert
        QObject::connect(&reader, &QTimer::timeout, &reader, [] {
            if (QWidget *alert = QApplication::activeModalWidget())
                alert->close();
        });
        reader.start(0);
        expect(Store::_instance().open(at()) && UserData::_instance().addSuperUser(superUser("root", "roots")));
        QByteArray valid;
        QDataStream stream(&valid, QIODevice::WriteOnly);
        stream << UserData::_instance().generateSuperUserCredentials("root");
        takeFiles(valid, [&] {
            const bool right = input.startsWith(valid) && input.size() <= 256; // what follows is not read
            expect(LoginWorker::_instance().importLoginCredentials("root") == right);
            return right;
        });
        Store::_instance().close();
    }

    void customisation()
    {
        kelvra_worker::CustomizeFile(dir->filePath("valid")).createIfMissing();
        const QRegularExpression permission("(*ANYCRLF)(?im)^\\s*replace_superuser\\s*=.*(true|1)");
        const QRegularExpression openQuote("(*ANYCRLF)(?m)^[^;#\"\\\\\r\n]*\"[^;\"\\\\\r\n]*$");
        takeFiles(readFile(dir->filePath("valid")).replace("superuser=false", "superuser=true"), [&] {
            kelvra_worker::CustomizeFile file(chosenFile);
            QString error, text = QString::fromUtf8(input);
            const bool ok = file.read(&error);
            expect(ok == error.isEmpty() && (!ok || (text.toUtf8() == input && !openQuote.match(text).hasMatch())));
            expect(!file.isSuperUserReplaceable() || permission.match(text.remove('"')).hasMatch());
            return ok;
        });
    }

    void accounts()
    {
        kelvra_saas::AccountsFile(dir->filePath("valid")).read();
        takeFiles(readFile(dir->filePath("valid")), [&] {
            kelvra_saas::AccountsFile file(chosenFile);
            const bool ok = file.read();
            expect(ok == file.problem().isEmpty() && ok == !file.accounts().isEmpty());
            QSet<QString> phones;
            for (const auto &account : file.accounts()) {
                expect(kelvra_saas::isPhoneNumber(account.phone) && input.contains(account.phone.toUtf8()));
                expect(account.password.size() >= 8 && input.contains(account.password.toUtf8()));
                expect(!std::exchange(phones, phones + QSet<QString>{account.phone}).contains(account.phone));
            }
            return ok;
        });
    }

    void key()
    {
        Vault vault;
        expect(Vault::createKeyFile(dir->filePath("valid")) && vault.unlock(dir->filePath("valid")));
        const QByteArray valid = readFile(dir->filePath("valid")), sealed = vault.seal("secret", "place");
        takeFiles(valid, [&] {
            QString text;
            expect(vault.unlock(chosenFile) == (input.size() == Vault::keyFileBytes));
            expect(vault.open(sealed, "place", text) == (input == valid) && (text == "secret") == (input == valid));
            return input == valid;
        });
    }

    /** The pad, beside what the rules of its dots make of the same events. */
    void gesture()
    {
        GesturePanel pad;
        pad.setFixedSize(300, 300);
        pad.show();
        QCoreApplication::processEvents();
        GestureCentres dots;
        for (const auto *dot : pad.findChildren<GesturePoint *>())
            dots[std::size_t(dot->getIndex())] = dot->getCentre();
        QString given, digits;
        QObject::connect(&pad, &GesturePanel::signalGesturePwd, [&](const QString &pwd) { given += pwd; });
        GestureDotSet taken;
        bool pressed = false, finished = false;
        QPoint place, last;
        take([&](int) {
            const QPoint dot = dots[std::size_t(below(gestureDots))];
            place = below(3) == 0 ? QPoint(below(400) - 50, below(400) - 50) : dot + (dot - place) / 9;
            const auto kind = QVector<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                                    QEvent::MouseMove}[qMin(2, below(20))];
            input = QString("%1 at %2,%3").arg(kind).arg(place.x()).arg(place.y()).toLatin1();
            QMouseEvent event(kind, place, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&pad, &event);
            pressed = pressed || (kind == QEvent::MouseButtonPress && !finished && dotUnder(dots, place) >= 0);
            if (kind == QEvent::MouseMove && pressed && !finished) {
                const int next = taken.none() ? dotUnder(dots, place) : dotPassed(dots, taken, last, place);
                if (next != noGestureDot) {
                    last = dots[std::size_t(next)];
                    taken.set(std::size_t(next));
                    digits += QString::number(next);
                }
            }
            const bool handsOut = kind == QEvent::MouseButtonRelease && !finished && taken.any();
            expect(std::exchange(given, {}) == (handsOut ? digits : QString()));
            finished = finished || handsOut;
            if (handsOut && below(2) == 0)
                pad.setError();
            if (below(30) == 0) {
                now += 700; // longer than a gesture stays on show
                QCoreApplication::processEvents();
                if (std::exchange(finished, false)) {
                    pressed = false;
                    digits.clear();
                    taken.reset();
                }
            }
            return handsOut;
        });
    }

    int accepted = 0;

private:
    int below(int limit) { return int(random.bounded(quint32(limit))); }

    void expect(bool fact)
    {
        if (fact)
            return;
        std::fprintf(stderr, "wrong after: %s\n%s\n", input.toHex().constData(), input.constData());
        std::_Exit(1);
    }

    /** `one` takes an input and tells whether it was accepted. */
    template <typename One>
    void take(const One &one)
    {
        for (int i = 0; i < count; ++i) {
            if (i % 1000 == 0)
                alarm(hangSeconds);
            accepted += one(i);
        }
    }

    /** Puts each input into a file of its own: settings are remembered by the name of their file. */
    template <typename One>
    void takeFiles(const QByteArray &valid, const One &one)
    {
        take([&](int number) {
            input = mutated(valid);
            chosenFile = dir->filePath(QString::number(number));
            writeFile(chosenFile, input);
            const bool right = one();
            expect(readFile(chosenFile) == input && QFile::remove(chosenFile));
            return right;
        });
    }

    /** Noise, or the valid input with a few things done to it, or none. */
    QByteArray mutated(QByteArray data)
    {
        static const QList<QByteArray> words =
            QByteArray("\n [ ] = ; \" \\ % \xff true 1 false \xc3 \r \t , / @Variant( \\x0").split(' ');
        if (below(10) == 0) {
            data.resize(below(300));
            random.generate(data.begin(), data.end());
        }
        for (int changes = below(6); changes > 0; --changes) {
            const int place = below(4) == 0 ? data.size() : below(data.size() + 1);
            const int length = 1 + below(below(4) == 0 ? 200 : 8);
            const QByteArray put[] = {{},
                                      data.mid(below(data.size() + 1), length),
                                      words.at(below(words.size())),
                                      QByteArray(length, char(below(256))),
                                      QByteArray(1, char(below(256))),
                                      QByteArray(1, char(data.constData()[place] ^ (1 << below(8))))};
            const int kind = below(6);
            data.replace(place, kind == 0 || below(4) == 0 ? length : below(2) * put[kind].size(), put[kind]);
        }
        return data;
    }

    const int count;
    QRandomGenerator random;
    QByteArray input; // the one at work
};

} // namespace

// What would wait for a person.
QString ZCOMMON::ZFileDialog::getOpenFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
                                              QFileDialog::Options)
{
    return chosenFile;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules("default.warning=false"); // of a platform without windows
    const QString wanted = app.arguments().value(1, "all");
    const int count = app.arguments().value(2, "2000").toInt(), seed = app.arguments().value(3, "1").toInt();
    for (const auto &[name, target] : {std::pair("credentials", &Fuzz::credentials),
                                       {"customisation", &Fuzz::customisation},
                                       {"accounts", &Fuzz::accounts},
                                       {"key", &Fuzz::key},
                                       {"gesture", &Fuzz::gesture}}) {
        if (wanted != "all" && wanted != name)
            continue;
        Fuzz fuzz(count, seed);
        (fuzz.*target)();
        std::printf("%s: %d of %d inputs accepted\n", name, fuzz.accepted, count);
        if (fuzz.accepted == 0)
            return 1; // nothing has been tried then
    }
}
