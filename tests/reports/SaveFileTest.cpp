// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/saveFile.h"

#include "support/Recordings.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace quillmark;
using namespace quillmark::reports;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(SaveError::Reason)

namespace {

/// For as long as it lives, nobody has rights that root has.
class WithoutRootsRights
{
public:
    WithoutRootsRights() { isRoot = geteuid() == 0 && seteuid(nobody) == 0; }
    ~WithoutRootsRights()
    {
        if (isRoot && seteuid(0) != 0)
            qFatal("root's rights are gone");
    }
    static constexpr uid_t nobody = 65534;

private:
    bool isRoot = false;
};

mode_t modeOf(const QString &path)
{
    struct stat info = {};
    return ::stat(qPrintable(path), &info) == 0 ? info.st_mode & 0777 : 0;
}

} // namespace

class SaveFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void targets_data();
    void targets();
    void protectedTargets();
    void noSpace();
    void modes();
    void fromTheFolderAtHand();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    std::optional<SaveError::Reason> save(const QString &name, Existing existing,
                                          const QByteArray &bytes = "new") const
    {
        const auto saved = saveFile(std::filesystem::path(path(name).toStdString()), bytes, existing);
        return saved ? std::nullopt : std::optional(saved.error().reason);
    }
    /// Of the folder, with what half-written files would be called.
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SaveFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile old(path(u"old.txt"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    // Links in links, one that leads to no file yet, two that lead to each other.
    QVERIFY(QFile::link(u"old.txt"_s, path(u"link"_s)) && QFile::link(u"link"_s, path(u"link of link"_s)));
    QVERIFY(QFile::link(u"folder/target.txt"_s, path(u"dangling"_s)));
    QVERIFY(QFile::link(u"round"_s, path(u"loop"_s)) && QFile::link(u"loop"_s, path(u"round"_s)));
    QVERIFY(::mkfifo(qPrintable(path(u"pipe"_s)), 0600) == 0);
}

void SaveFileTest::targets_data()
{
    using Reason = SaveError::Reason;
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("mayReplace");
    QTest::addColumn<std::optional<Reason>>("reason");
    QTest::addColumn<QString>("written"); // the file that holds the bytes afterwards
    const auto good = [](const QString &target, bool mayReplace, const QString &written) {
        QTest::newRow(qPrintable(target + u' ' + QString::number(mayReplace)))
            << target << mayReplace << std::optional<Reason>() << written;
    };
    const auto bad = [](const QString &target, bool mayReplace, Reason reason) {
        QTest::newRow(qPrintable(target.left(20) + u' ' + QString::number(mayReplace)))
            << target << mayReplace << std::optional(reason) << QString();
    };
    good(u"fresh.txt"_s, false, u"fresh.txt"_s);
    good(u"fresh.txt"_s, true, u"fresh.txt"_s);
    good(u"old.txt"_s, true, u"old.txt"_s);
    good(u"link"_s, true, u"old.txt"_s);
    good(u"link of link"_s, true, u"old.txt"_s);
    good(u"dangling"_s, false, u"folder/target.txt"_s);
    good(QString(255, u'n'), false, QString(255, u'n'));
    bad(u"old.txt"_s, false, Reason::Exists);
    bad(u"link of link"_s, false, Reason::Exists);
    for (const bool mayReplace : {false, true}) {
        bad(u"folder"_s, mayReplace, Reason::IsFolder);
        bad(u"missing/"_s, mayReplace, Reason::IsFolder);
        bad(u"missing/file.txt"_s, mayReplace, Reason::NoFolder);
        bad(u"old.txt/file.txt"_s, mayReplace, Reason::NoFolder);
        bad(u"loop"_s, mayReplace, Reason::BadName);
        bad(QString(256, u'n'), mayReplace, Reason::BadName);
    }
}

/// What is not replaced stands as it was, links stay links, and nothing half-written is left behind.
void SaveFileTest::targets()
{
    QFETCH(const QString, target);
    QFETCH(const bool, mayReplace);
    QFETCH(const std::optional<SaveError::Reason>, reason);
    QFETCH(const QString, written);
    const auto before = names();
    QCOMPARE(save(target, mayReplace ? Existing::Replace : Existing::Keep), reason);
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray(written == u"old.txt" ? "new" : "old"));
    QVERIFY(QFileInfo(path(u"link"_s)).isSymLink() && QFileInfo(path(u"link of link"_s)).isSymLink());
    auto after = names();
    if (!written.isEmpty()) {
        QCOMPARE(contents(path(written)), QByteArray("new"));
        if (!before.contains(written))
            after.removeAll(written);
    }
    QCOMPARE(after, before);
}

void SaveFileTest::protectedTargets()
{
    QVERIFY(::chmod(qPrintable(m_folder->path()), 0755) == 0);
    QVERIFY(::chmod(qPrintable(path(u"folder"_s)), 0555) == 0);
    QVERIFY(::chmod(qPrintable(path(u"old.txt"_s)), 0444) == 0);
    if (geteuid() == 0) // the protection has to hold against the one who tries
        QVERIFY(::chown(qPrintable(m_folder->path()), WithoutRootsRights::nobody, 0) == 0);
    {
        const WithoutRootsRights whileTrying;
        QCOMPARE(save(u"folder/file.txt"_s, Existing::Keep), SaveError::Reason::NoPermission);
        QCOMPARE(save(u"old.txt"_s, Existing::Replace), SaveError::Reason::NoPermission);
        QCOMPARE(save(u"file.txt"_s, Existing::Keep), std::nullopt);
    }
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray("old"));
    QVERIFY(QDir(path(u"folder"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QVERIFY(::chmod(qPrintable(path(u"folder"_s)), 0755) == 0); // so that it can be taken away
}

/// A limit to the size of files stops a write half-way, as a full disk does.
void SaveFileTest::noSpace()
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &before) == 0);
    const rlimit little = {.rlim_cur = 10, .rlim_max = before.rlim_max};
    QVERIFY(setrlimit(RLIMIT_FSIZE, &little) == 0);
    const auto fresh = save(u"fresh.txt"_s, Existing::Keep, QByteArray(100, 'x'));
    const auto old = save(u"old.txt"_s, Existing::Replace, QByteArray(100, 'x'));
    QVERIFY(setrlimit(RLIMIT_FSIZE, &before) == 0);
    QCOMPARE(fresh, SaveError::Reason::NoSpace);
    QCOMPARE(old, SaveError::Reason::NoSpace);
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray("old"));
    QVERIFY(names().filter(u".quillmark"_s).isEmpty() && !names().contains(u"fresh.txt"_s));
}

/// A new file is as open as the process makes its files, a replaced one as it was.
void SaveFileTest::modes()
{
    const auto before = ::umask(027);
    QVERIFY(::chmod(qPrintable(path(u"old.txt"_s)), 0604) == 0);
    const bool areSaved = !save(u"fresh.txt"_s, Existing::Keep) && !save(u"old.txt"_s, Existing::Replace);
    ::umask(before);
    QVERIFY(areSaved);
    QCOMPARE(modeOf(path(u"fresh.txt"_s)), 0640u);
    QCOMPARE(modeOf(path(u"old.txt"_s)), 0604u);

    // A pipe is written to.
    const int reader = ::open(qPrintable(path(u"pipe"_s)), O_RDONLY | O_NONBLOCK);
    QVERIFY(!save(u"pipe"_s, Existing::Keep));
    QByteArray bytes(10, 0);
    QCOMPARE(::read(reader, bytes.data(), 10), 3);
    ::close(reader);
    QVERIFY(names().contains(u"pipe"_s) && bytes.startsWith("new"));
}

void SaveFileTest::fromTheFolderAtHand()
{
    const auto before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const auto saved = saveFile("bare.txt", "new", Existing::Keep);
    const auto again = saveFile("bare.txt", "newer", Existing::Keep);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(saved);
    QCOMPARE(contents(path(u"bare.txt"_s)), QByteArray("new"));
    QCOMPARE(title(again.error()), u"The report couldn’t be saved."_s);
    QCOMPARE(reasonText(again.error()), u"There is a file with this name already."_s);
}

QTEST_GUILESS_MAIN(SaveFileTest)
#include "SaveFileTest.moc"
