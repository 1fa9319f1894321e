// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "history/ScanHistory.h"

#include "support/Snapshots.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <memory>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace quillmark;
using namespace quillmark::history;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

Inspection inspectionWith(const QString &value, const QString &model = u"Mac15,3"_s)
{
    Inspection inspection;
    inspection.summary.modelIdentifier = model;
    inspection.sections = {{.title = u"Section"_s, .items = {{.label = u"Row"_s, .value = value}}}};
    return inspection;
}

/// The value of the row of each snapshot, as the list or the file has them.
QString values(const QList<ScanSnapshot> &snapshots)
{
    QStringList result;
    for (const auto &snapshot : snapshots)
        result += snapshot.sections.first().items.first().value;
    return result.join(u' ');
}

QList<ScanSnapshot> snapshotsIn(const QString &path)
{
    const auto contents = HistoryFile(path).read();
    if (!contents.fault.isEmpty())
        qFatal("%s", qPrintable(contents.fault));
    QList<ScanSnapshot> snapshots;
    for (const auto &stored : contents.snapshots)
        snapshots += stored.snapshot;
    return snapshots;
}

void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s", qPrintable(file.errorString()));
}

QByteArray historyOf(int count)
{
    QByteArray text;
    for (const auto &snapshot : laptopHistory(count))
        text += (text.isEmpty() ? '[' : ',') + encoded(snapshot);
    return text + ']';
}

/// Expects the log line of a save that failed for this reason.
void expectLogged(const QString &reason)
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable(u"ScanHistory: could not save snapshots: "_s + reason));
}

/// What must not be written to while it stands.
class Obstacle
{
public:
    virtual ~Obstacle() = default;
};

/// As on a full disk, or in a program that has opened all that it may.
class Limit final : public Obstacle
{
public:
    Limit(decltype(RLIMIT_FSIZE) resource, rlim_t most)
        : m_resource(resource)
    {
        getrlimit(m_resource, &m_before);
        const rlimit limit{.rlim_cur = most, .rlim_max = m_before.rlim_max};
        setrlimit(m_resource, &limit);
    }
    ~Limit() override { setrlimit(m_resource, &m_before); }

private:
    decltype(RLIMIT_FSIZE) m_resource;
    rlimit m_before{};
};

/// Root may write everywhere, and becomes somebody else for that.
class ReadOnlyFolder final : public Obstacle
{
public:
    explicit ReadOnlyFolder(const QString &path)
        : m_path(path)
        , m_user(geteuid())
    {
        QFile::setPermissions(m_path,
                              QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        if (m_user == 0 && seteuid(65534) != 0)
            qFatal("cannot become another user");
    }
    ~ReadOnlyFolder() override
    {
        if (seteuid(m_user) != 0)
            qFatal("cannot become root again");
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QString m_path;
    uid_t m_user;
};

} // namespace

class ScanHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void firstScan();
    void sameScanAgain();
    void keepsTwoHundred();
    void removes();
    void failures_data();
    void failures();
    void savedAfterAll();
    void keepsTheUnreadableAside();
    void replacesNothingUnread();
    void followsLinks();
    void twoPrograms();
    void savedByTheNextInspection();
    void clearsWhatWasThere();
    void sameScanOfAnother();
    void waitsForAnother();
    void lockFileRemoved();
    void savesInOrder();
    void survivesKilling();
    void defaultFile_data();
    void defaultFile();

private:
    bool record(ScanHistory &history, const QString &value, const QString &model = u"Mac15,3"_s) const
    {
        const auto inspection = inspectionWith(value, model);
        return history.record(inspection.summary, inspection.sections);
    }

    language::LanguageManager m_language;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void ScanHistoryTest::initTestCase()
{
    qunsetenv("QT_FATAL_WARNINGS"); // failures are logged as such
    std::signal(SIGXFSZ, SIG_IGN);
}

void ScanHistoryTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"History/snapshots.json"_s);
}

void ScanHistoryTest::firstScan()
{
    ScanHistory history(m_language, m_path);
    QVERIFY(history.snapshots().isEmpty());
    QVERIFY(!QFileInfo::exists(m_folder->filePath(u"History"_s)));
    const QSignalSpy changed(&history, &ScanHistory::snapshotsChanged);

    QVERIFY(record(history, u"a"_s));
    QCOMPARE(changed.size(), 1);
    QVERIFY(history.flush());
    QCOMPARE(snapshotsIn(m_path), history.snapshots());
    QCOMPARE(history.snapshots().size(), 1);
    QCOMPARE(history.snapshots().first().language, u"en"_s);
    const auto everybody = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                           QFile::WriteOther | QFile::ExeOther;
    for (const auto &path : {m_path, m_path + u".lock"_s, QFileInfo(m_path).path()})
        QVERIFY2(!(QFile::permissions(path) & everybody), qPrintable(path));
}

void ScanHistoryTest::sameScanAgain()
{
    ScanHistory history(m_language, m_path);
    record(history, u"a"_s);
    QVERIFY(history.flush());
    const auto before = QFileInfo(m_path).lastModified();
    const QSignalSpy changed(&history, &ScanHistory::snapshotsChanged);
    QVERIFY(!record(history, u"a"_s));
    QVERIFY(history.flush());
    QCOMPARE(changed.size(), 0);
    QCOMPARE(QFileInfo(m_path).lastModified(), before);

    QVERIFY(record(history, u"a"_s, u"Mac14,2"_s));
    QVERIFY(record(history, u"a"_s)); // only the newest one counts
    QVERIFY(history.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"a a a"_s);
}

void ScanHistoryTest::keepsTwoHundred()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
    write(m_path, historyOf(250));
    ScanHistory history(m_language, m_path);
    QCOMPARE(history.snapshots().size(), 250);
    const auto before = history.snapshots();
    record(history, u"new"_s);
    QCOMPARE(history.snapshots().size(), 200);
    QCOMPARE(history.snapshots().mid(1), before.first(199));
    record(history, u"newer"_s);
    QVERIFY(history.flush());
    QCOMPARE(snapshotsIn(m_path), history.snapshots());
    QCOMPARE(history.snapshots().size(), 200);
}

void ScanHistoryTest::removes()
{
    ScanHistory history(m_language, m_path);
    for (const auto &value : {u"a"_s, u"b"_s, u"c"_s})
        record(history, value);
    history.remove(QUuid::createUuid());
    history.remove(history.snapshots().at(1).id);
    QVERIFY(history.flush());
    QCOMPARE(values(history.snapshots()), u"c a"_s);
    QCOMPARE(values(snapshotsIn(m_path)), u"c a"_s);
    history.clear();
    QVERIFY(history.flush());
    QCOMPARE(contents(m_path), QByteArray("[]"));
}

void ScanHistoryTest::failures_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full disk") << u"limit"_s << u"File too large"_s; // what the limit makes of it
    QTest::newRow("read-only folder") << u"read-only"_s << u"Permission denied"_s;
    QTest::newRow("path is a folder") << u"folder"_s << u"Is a directory"_s;
    QTest::newRow("no folder can be made") << u"file"_s << u"Not a directory"_s;
}

/// Logged and announced; the list has the scan, the file is as it was, and the next save has all.
void ScanHistoryTest::failures()
{
    QFETCH(const QString, obstacle);
    QFETCH(const QString, reason);
    const auto folder = QFileInfo(m_path).path();
    const bool hasFile = obstacle == u"limit" || obstacle == u"read-only";
    if (hasFile) {
        ScanHistory history(m_language, m_path);
        record(history, u"before"_s);
    } else if (obstacle == u"folder") {
        QVERIFY(QDir().mkpath(m_path));
    } else {
        write(folder, "text");
    }

    ScanHistory history(m_language, m_path);
    QSignalSpy failed(&history, &ScanHistory::saveFailed);
    {
        std::unique_ptr<Obstacle> standing;
        if (obstacle == u"limit")
            standing = std::make_unique<Limit>(RLIMIT_FSIZE, 100);
        else if (obstacle == u"read-only")
            standing = std::make_unique<ReadOnlyFolder>(folder);
        expectLogged(reason);
        QVERIFY(record(history, u"a"_s));
        const auto saved = history.flush();
        QVERIFY(!saved);
        QCOMPARE(saved.error(), (SaveError{SaveError::Kind::NotWritten, reason}));
    }
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(values(history.snapshots()), hasFile ? u"a before"_s : u"a"_s);

    if (hasFile)
        QCOMPARE(values(snapshotsIn(m_path)), u"before"_s);
    else if (obstacle == u"folder")
        QVERIFY(QDir().rmdir(m_path));
    else
        QVERIFY(contents(folder) == "text" && QFile::remove(folder));
    record(history, u"b"_s);
    QVERIFY(history.flush());
    QCOMPARE(values(snapshotsIn(m_path)), hasFile ? u"b a before"_s : u"b a"_s);
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 2); // the history and its lock
}

/// A failure that a later save has mended by the time it could be told of.
void ScanHistoryTest::savedAfterAll()
{
    ScanHistory history(m_language, m_path);
    record(history, u"before"_s);
    QVERIFY(history.flush());
    const QSignalSpy failed(&history, &ScanHistory::saveFailed);
    {
        const Limit noRoom(RLIMIT_FSIZE, 100);
        expectLogged(u"File too large"_s);
        record(history, u"a"_s);
        QVERIFY(!history.flush());
    }
    record(history, u"b"_s);
    QVERIFY(history.flush());
    QCoreApplication::processEvents();
    QCOMPARE(failed.size(), 0);
    QCOMPARE(values(snapshotsIn(m_path)), u"b a before"_s);
}

void ScanHistoryTest::keepsTheUnreadableAside()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
    const auto aside = [this](const QString &name) {
        return m_folder->filePath(u"History/snapshots.unreadable%1.json"_s.arg(name));
    };
    const QByteArray first(100'000, '1');
    const QByteArray second(100'000, '2');
    for (const auto &text : {first, second}) {
        write(m_path, text);
        ScanHistory history(m_language, m_path);
        QVERIFY(history.snapshots().isEmpty());
        {
            const Limit noRoom(RLIMIT_FSIZE, 100);
            expectLogged(u"the unreadable history could not be copied aside: File too large"_s);
            record(history, u"a"_s);
            QVERIFY(!history.flush());
        }
        QCOMPARE(contents(m_path), text);
        QVERIFY(!QFileInfo::exists(aside(text == first ? u""_s : u"-2"_s)));
        record(history, u"b"_s);
        QVERIFY(history.flush());
        QCOMPARE(values(snapshotsIn(m_path)), u"b a"_s);
    }
    QCOMPARE(contents(aside({})), first);
    QCOMPARE(contents(aside(u"-2"_s)), second);
    QVERIFY(!QFileInfo::exists(aside(u"-3"_s)));
}

/// What cannot be opened or read just now is neither an empty history nor replaced by one.
void ScanHistoryTest::replacesNothingUnread()
{
    QCOMPARE(HistoryFile(m_path).readDigests().value().size(), 0U); // there is none

    QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
    const auto text = historyOf(3);
    write(m_path, text);
    HistoryFile file(m_path);
    QVERIFY(file.claim());
    {
        const Limit noFileToSpare(RLIMIT_NOFILE, 0);
        const auto reason = u"Too many open files"_s;
        QCOMPARE(file.readDigests().error(), reason);
        QCOMPARE(file.read().fault, reason);
        QCOMPARE(file.write({}).error(),
                 (SaveError{SaveError::Kind::NotWritten, u"the history could not be read: "_s + reason}));
    }
    QCOMPARE(contents(m_path), text);
    QCOMPARE(file.read().snapshots.size(), 3U);

    // A program that began without it has it again when it can be read, and asks for nothing to be removed.
    std::unique_ptr<ScanHistory> history;
    {
        const Limit noFileToSpare(RLIMIT_NOFILE, 0);
        history = std::make_unique<ScanHistory>(m_language, m_path);
        QVERIFY(history->snapshots().isEmpty());
        expectLogged(u"Too many open files"_s);
        record(*history, u"new"_s);
        QVERIFY(!history->flush());
    }
    file = HistoryFile(m_path); // gives the lock back
    record(*history, u"newer"_s);
    QVERIFY(history->flush());
    QCOMPARE(snapshotsIn(m_path).size(), 5);
    QCOMPARE(snapshotsIn(m_path), history->snapshots());

    // One that is damaged while the program has it in mind is put aside, and written anew from there.
    const auto known = history->snapshots();
    history.reset();
    ScanHistory other(m_language, m_path);
    write(m_path, "damaged");
    record(other, u"newest"_s);
    QVERIFY(other.flush());
    QCOMPARE(snapshotsIn(m_path).sliced(1), known);
    QCOMPARE(contents(m_folder->filePath(u"History/snapshots.unreadable.json"_s)), QByteArray("damaged"));

#ifdef Q_OS_LINUX
    HistoryFile unreadable(u"/proc/self/mem"_s); // a regular file, whose first page is not there
    QCOMPARE(unreadable.readDigests().error(), u"Input/output error"_s);
    QCOMPARE(unreadable.read().fault, u"Input/output error"_s);
    QCOMPARE(unreadable.write({}).error().kind, SaveError::Kind::NotWritten);
#endif
}

void ScanHistoryTest::followsLinks()
{
    const auto target = m_folder->filePath(u"elsewhere/target.json"_s);
    const auto link = m_folder->filePath(u"link.json"_s);
    QVERIFY(QFile::link(u"elsewhere/target.json"_s, link));
    for (const auto &value : {u"a"_s, u"b"_s}) { // the first finds no target
        ScanHistory history(m_language, link);
        record(history, value);
        QVERIFY(history.flush());
    }
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(values(snapshotsIn(target)), u"b a"_s);
}

/// The first to change the file has it until it ends; no scan of either is lost.
void ScanHistoryTest::twoPrograms()
{
    auto first = std::make_unique<ScanHistory>(m_language, m_path);
    ScanHistory second(m_language, m_path);
    record(*first, u"a"_s);
    QVERIFY(first->flush());

    const auto reason = u"another Quillmark (process %1) has the history open"_s.arg(getpid());
    const QSignalSpy failed(&second, &ScanHistory::saveFailed);
    for (int i = 0; i < 3; ++i)
        expectLogged(reason);
    QVERIFY(record(second, u"x"_s));
    QCOMPARE(second.flush().error(), (SaveError{SaveError::Kind::InUse, reason}));
    second.remove(second.snapshots().first().id);
    second.clear();
    QTRY_COMPARE(failed.size(), 3);
    QCOMPARE(values(second.snapshots()), u"x"_s);
    record(*first, u"b"_s);
    first.reset();
    QCOMPARE(values(snapshotsIn(m_path)), u"b a"_s);

    record(second, u"y"_s);
    QVERIFY(second.flush());
    QCOMPARE(values(second.snapshots()), u"y x b a"_s);
    QCOMPARE(values(snapshotsIn(m_path)), u"y x b a"_s);
}

/// A scan that could not join the file does with the next inspection, though that one has no news.
void ScanHistoryTest::savedByTheNextInspection()
{
    auto first = std::make_unique<ScanHistory>(m_language, m_path);
    record(*first, u"a"_s);
    QVERIFY(first->flush());
    ScanHistory second(m_language, m_path);
    const auto reason = u"another Quillmark (process %1) has the history open"_s.arg(getpid());
    expectLogged(reason);
    QVERIFY(record(second, u"b"_s));
    QVERIFY(!second.flush());
    first.reset();
    QVERIFY(!record(second, u"b"_s));
    QVERIFY(second.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"b a"_s);
}

/// What another program saved after the list was read is not what was meant to go.
void ScanHistoryTest::clearsWhatWasThere()
{
    ScanHistory history(m_language, m_path);
    {
        ScanHistory other(m_language, m_path);
        record(other, u"a"_s);
    }
    history.clear();
    QVERIFY(history.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"a"_s);
    history.clear();
    QVERIFY(history.flush());
    QVERIFY(snapshotsIn(m_path).isEmpty());
}

/// One that was saved after this program had read the file is no news here either.
void ScanHistoryTest::sameScanOfAnother()
{
    ScanHistory history(m_language, m_path);
    {
        ScanHistory other(m_language, m_path);
        record(other, u"a"_s);
    }
    QVERIFY(!record(history, u"a"_s));
    QCOMPARE(values(history.snapshots()), u"a"_s);
    QVERIFY(history.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"a"_s);
}

/// A short command waits for another short one.
void ScanHistoryTest::waitsForAnother()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
    platform::FileLock lock;
    QVERIFY(lock.take((m_path + u".lock"_s).toStdString(), {}));
    std::thread ending([&lock] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        lock.release();
    });
    ScanHistory patient(m_language, m_path, std::chrono::minutes(1));
    record(patient, u"a"_s);
    ending.join();
    QVERIFY(patient.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"a"_s);
}

/// What another program wrote after the lock file had vanished is not overwritten.
void ScanHistoryTest::lockFileRemoved()
{
    ScanHistory first(m_language, m_path);
    record(first, u"a"_s);
    QVERIFY(first.flush());
    QVERIFY(QFile::remove(m_path + u".lock"_s));
    {
        ScanHistory second(m_language, m_path);
        record(second, u"x"_s);
    }
    const QSignalSpy failed(&first, &ScanHistory::saveFailed);
    expectLogged(u"another program has changed the history"_s);
    record(first, u"b"_s);
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(values(snapshotsIn(m_path)), u"x a"_s);
    record(first, u"c"_s);
    QVERIFY(first.flush());
    QCOMPARE(values(snapshotsIn(m_path)), u"c b x a"_s);
}

/// Leaving finishes what is on its way, and the last change is what stays.
void ScanHistoryTest::savesInOrder()
{
    QString expected;
    {
        ScanHistory history(m_language, m_path);
        for (int i = 0; i < 100; ++i)
            record(history, QString::number(i));
        expected = values(history.snapshots());
    }
    QCOMPARE(values(snapshotsIn(m_path)), expected);
    QCOMPARE(expected.section(u' ', 0, 1), u"99 98"_s);
}

/// A child saves scan after scan, and tells when one is saved. Whenever it is killed, the file is whole, and
/// has all that was told.
void ScanHistoryTest::survivesKilling()
{
    constexpr int kills = 250;
    constexpr qsizetype padding = 1000;
    std::mt19937 random(static_cast<std::uint32_t>(getpid()));
    int newest = 0;
    int midWrite = 0;
    for (int i = 0; i < kills; ++i) {
        std::array<int, 2> pipe{};
        QCOMPARE(::pipe(pipe.data()), 0);
        const pid_t child = fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            ScanHistory history(m_language, m_path);
            for (int number = newest + 1;; ++number) {
                record(history, QString::number(number) + QString(padding, u'.'));
                if (!history.flush() || ::write(pipe[1], &number, sizeof number) < 0)
                    _exit(1);
            }
        }
        close(pipe[1]);
        int told = 0;
        const auto hears = [&] { return read(pipe[0], &told, sizeof told) == sizeof told; };
        QVERIFY(hears());
        usleep(static_cast<useconds_t>(random() % 8000));
        kill(child, SIGKILL);
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        while (hears()) {
        }
        close(pipe[0]);

        const auto snapshots = snapshotsIn(m_path); // fails on a file that is not whole
        const auto number = [&snapshots](qsizetype at) {
            return values({snapshots.at(at)}).section(u'.', 0, 0).toInt();
        };
        const int last = snapshots.isEmpty() ? 0 : number(0);
        QVERIFY2(last == told || last == told + 1, qPrintable(u"%1 of %2"_s.arg(last).arg(told)));
        QCOMPARE(snapshots.size(), qMin<qsizetype>(last, ScanHistory::mostSnapshots));
        for (qsizetype at = 0; at < snapshots.size(); ++at)
            QCOMPARE(number(at), last - static_cast<int>(at));
        midWrite += last > told;
        newest = last;
    }
    ScanHistory history(m_language, m_path);
    record(history, u"after"_s);
    QVERIFY(history.flush());
    QCOMPARE(QFileInfo(m_path).dir().entryList(QDir::Files | QDir::Hidden).size(), 2);
    qInfo() << newest << "scans saved," << midWrite << "kills between saving and telling";
    QVERIFY(newest > 0);
}

void ScanHistoryTest::defaultFile_data()
{
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<QString>("expected");
    const auto usual = QDir::homePath() + u"/.local/share/Quillmark/History/snapshots.json"_s;
    QTest::newRow("as the environment says")
        << QByteArray("/data") << u"/data/Quillmark/History/snapshots.json"_s;
    QTest::newRow("not set") << QByteArray() << usual;
    QTest::newRow("relative, and so ignored") << QByteArray("data") << usual;
}

void ScanHistoryTest::defaultFile()
{
    QFETCH(const QByteArray, folder);
    qputenv("XDG_DATA_HOME", folder);
    QTEST(ScanHistory::defaultFile(), "expected");
}

QTEST_GUILESS_MAIN(ScanHistoryTest)
#include "ScanHistoryTest.moc"
