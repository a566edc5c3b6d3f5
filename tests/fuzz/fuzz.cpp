// Random input for what the client reads from files and takes from the mouse: fuzz [TARGET|all [COUNT [SEED]]]
#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/Vault.h"
#include "client/kelvra_saas/AccountsFile.h"
#include "client/kelvra_worker/CustomizeFile.h"
#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_base/ZMessageBox.h"
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
        QObject::connect(&reader, &QTimer::timeout, [] {
            if (const QWidget *alert = QApplication::activeModalWidget())
                alert->findChild<QPushButton *>("okBt")->click();
        });
        reader.start(0);
        expect(Store::_instance().open(at()) && UserData::_instance().addSuperUser(superUser("root", "roots")));
        QByteArray valid;
        QDataStream stream(&valid, QIODevice::WriteOnly);
        stream << UserData::_instance().generateSuperUserCredentials("root");
        run(valid, [&] {
            const bool right = input.startsWith(valid) && input.size() <= 256; // what follows is not read
            expect(LoginWorker::_instance().importLoginCredentials("root") == right);
            return right;
        });
        Store::_instance().close();
    }

    void customisation()
    {
        const QString path = dir->filePath("valid");
        kelvra_worker::CustomizeFile(path).createIfMissing();
        const QRegularExpression permission("^\\s*replace_superuser\\s*=.*(true|1)",
                                            QRegularExpression::MultilineOption |
                                                QRegularExpression::CaseInsensitiveOption);
        const QRegularExpression openQuote("^[^;#\"\\\\\n]*\"[^;\"\\\\\n]*$", QRegularExpression::MultilineOption);
        run(readFile(path).replace("superuser=false", "superuser=true"), [&] {
            kelvra_worker::CustomizeFile file(chosenFile);
            QString error;
            const bool ok = file.read(&error);
            expect(ok == error.isEmpty() && (!ok || QString::fromUtf8(input).toUtf8() == input));
            expect(!ok || !openQuote.match(QString::fromUtf8(input)).hasMatch());
            expect(!file.isSuperUserReplaceable() || permission.match(QString::fromUtf8(input).remove('"')).hasMatch());
            return ok;
        });
    }

    void accounts()
    {
        const QString path = dir->filePath("valid");
        kelvra_saas::AccountsFile(path).read();
        run(readFile(path), [&] {
            kelvra_saas::AccountsFile file(chosenFile);
            const bool ok = file.read();
            expect(ok == file.problem().isEmpty() && ok == !file.accounts().isEmpty());
            QSet<QString> phones;
            for (const auto &account : file.accounts()) {
                expect(kelvra_saas::isPhoneNumber(account.phone) && input.contains(account.phone.toUtf8()));
                expect(account.password.size() >= 8 && input.contains(account.password.toUtf8()));
                phones << account.phone;
            }
            expect(phones.size() == file.accounts().size());
            return ok;
        });
    }

    void key()
    {
        const QString path = dir->filePath("valid");
        Vault vault;
        expect(Vault::createKeyFile(path) && vault.unlock(path));
        const QByteArray valid = readFile(path);
        const QByteArray sealed = vault.seal("secret", "place");
        run(valid, [&] {
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
        QPoint place;
        for (int i = 0; i < count; ++i) {
            const QPoint dot = dots[std::size_t(below(gestureDots))];
            place = below(3) == 0 ? QPoint(below(400) - 50, below(400) - 50) : dot + (dot - place) / 9;
            static const QVector<QEvent::Type> kinds{QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                                     QEvent::MouseMove};
            const QEvent::Type kind = kinds[qMin(2, below(20))];
            input = QString("%1 at %2,%3").arg(kind).arg(place.x()).arg(place.y()).toLatin1();
            QMouseEvent event(kind, place, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&pad, &event);
            if (kind == QEvent::MouseButtonPress && !finished && dotUnder(dots, place) != noGestureDot)
                pressed = true;
            if (kind == QEvent::MouseMove && pressed && !finished) {
                const int next = digits.isEmpty()
                                     ? dotUnder(dots, place)
                                     : dotPassed(dots, taken, dots[std::size_t(digits.back().digitValue())], place);
                if (next != noGestureDot) {
                    taken.set(std::size_t(next));
                    digits += QString::number(next);
                }
            }
            const bool handsOut = kind == QEvent::MouseButtonRelease && !finished && !digits.isEmpty();
            expect(given == (handsOut ? digits : QString()));
            accepted += handsOut;
            finished = finished || handsOut;
            given.clear();
            if (handsOut && below(2) == 0)
                pad.setError();
            if (below(30) > 0)
                continue;
            now += 700; // longer than a gesture stays on show
            QCoreApplication::processEvents();
            if (std::exchange(finished, false)) {
                pressed = false;
                digits.clear();
                taken.reset();
            }
        }
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

    /** Puts each input into a file of its own; `take` tells whether it was accepted. */
    template <typename Take>
    void run(const QByteArray &valid, const Take &take)
    {
        for (int i = 0; i < count; ++i) {
            if (i % 1000 == 0)
                alarm(hangSeconds);
            input = mutated(valid);
            chosenFile = dir->filePath(QString::number(i)); // settings are remembered by the name of their file
            QFile file(chosenFile);
            expect(file.open(QIODevice::WriteOnly) && file.write(input) == input.size());
            file.close();
            accepted += take();
            expect(readFile(chosenFile) == input);
            file.remove();
        }
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
            const int place = below(data.size() + 1);
            const int length = 1 + below(below(4) == 0 ? 200 : 8);
            switch (below(6)) {
            case 0:
                data.remove(place, length);
                break;
            case 1:
                data.insert(place, data.mid(below(data.size() + 1), length));
                break;
            case 2:
                data.insert(place, words.at(below(words.size())));
                break;
            case 3:
                data.append(length, char(below(256)));
                break;
            default: // one bit, or any other byte
                if (place < data.size())
                    data[place] = char(below(2) == 0 ? data[place] ^ (1 << below(8)) : below(256));
            }
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

kelvra_base::MessageBoxButton kelvra_base::ZMessageBox::warning(QWidget *, const QString &, int, bool)
{
    return OkButton;
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules("default.warning=false"); // of a platform without windows
    const QStringList arguments = app.arguments();
    const QMap<QString, void (Fuzz::*)()> targets{{"credentials", &Fuzz::credentials},
                                                  {"customisation", &Fuzz::customisation},
                                                  {"accounts", &Fuzz::accounts},
                                                  {"key", &Fuzz::key},
                                                  {"gesture", &Fuzz::gesture}};
    for (const QString &target : targets.keys()) {
        if (arguments.value(1, "all") != "all" && arguments[1] != target)
            continue;
        const int count = arguments.value(2, "2000").toInt();
        Fuzz fuzz(count, arguments.value(3, "1").toInt());
        (fuzz.*targets[target])();
        std::printf("%s: %d of %d inputs accepted\n", qPrintable(target), fuzz.accepted, count);
        if (fuzz.accepted == 0)
            return 1; // nothing has been tried then
    }
}
