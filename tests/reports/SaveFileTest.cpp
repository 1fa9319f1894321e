// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "reports/saveFile.h"

#include "support/Recordings.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace quillmark::reports;
using namespace quillmark::support;
using namespace Qt::StringLiterals;
using Reason = SaveError::Reason;

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
    void removesTheAbandoned();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    std::optional<Reason> save(const QString &name, Existing existing, const QByteArray &bytes = "new") const
    {
        const auto saved = saveFile(std::filesystem::path(path(name).toStdString()), bytes, existing);
        return saved ? std::nullopt : std::optional(saved.error().reason);
    }
    /// Of all that is in the folder, half-written files too.
    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    }
    mode_t mode(const QString &name) const
    {
        struct stat info = {};
        return ::stat(qPrintable(path(name)), &info) == 0 ? info.st_mode & 0777 : 0;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SaveFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile old(path(u"old.txt"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    QVERIFY(QFile::link(u"old.txt"_s, path(u"link"_s)) && QFile::link(u"link"_s, path(u"link of link"_s)));
    QVERIFY(QFile::link(u"folder/target.txt"_s, path(u"dangling"_s)) &&
            QFile::link(u"loop"_s, path(u"loop"_s)));
}

void SaveFileTest::targets_data()
{
    QTest::addColumn<Existing>("existing");
    QTest::addColumn<std::optional<Reason>>("reason");
    QTest::addColumn<QString>("written"); // the file that holds the bytes afterwards
    const auto row = [](const QString &target, Existing existing, std::optional<Reason> reason,
                        const QString &written = {}) {
        const auto name = target + (existing == Existing::Keep ? u""_s : u"!"_s);
        QTest::newRow(qPrintable(name)) << existing << reason << written;
    };
    row(u"fresh.txt"_s, Existing::Keep, {}, u"fresh.txt"_s);
    row(u"fresh.txt"_s, Existing::Replace, {}, u"fresh.txt"_s);
    row(u"old.txt"_s, Existing::Replace, {}, u"old.txt"_s);
    row(u"link of link"_s, Existing::Replace, {}, u"old.txt"_s);
    row(u"dangling"_s, Existing::Keep, {}, u"folder/target.txt"_s);
    row(QString(255, u'n'), Existing::Keep, {}, QString(255, u'n'));
    row(u"old.txt"_s, Existing::Keep, Reason::Exists);
    row(u"link of link"_s, Existing::Keep, Reason::Exists);
    row(u"folder"_s, Existing::Replace, Reason::IsFolder);
    row(u"missing/"_s, Existing::Keep, Reason::IsFolder);
    row(u"missing/file.txt"_s, Existing::Replace, Reason::NoFolder);
    row(u"old.txt/file.txt"_s, Existing::Keep, Reason::NoFolder);
    row(u"loop"_s, Existing::Replace, Reason::BadName);
    row(QString(256, u'n'), Existing::Keep, Reason::BadName);
}

/// What is not replaced stands as it was, links stay links, and nothing half-written is left behind.
void SaveFileTest::targets()
{
    QFETCH(const Existing, existing);
    QFETCH(const std::optional<Reason>, reason);
    QFETCH(const QString, written);
    const auto before = names();
    QCOMPARE(save(QString::fromUtf8(QTest::currentDataTag()).remove(u'!'), existing), reason);
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray(written == u"old.txt" ? "new" : "old"));
    QVERIFY(QFileInfo(path(u"link"_s)).isSymLink() && QFileInfo(path(u"link of link"_s)).isSymLink());
    if (!written.isEmpty())
        QCOMPARE(contents(path(written)), QByteArray("new"));
    auto after = names();
    after.removeIf([&](const QString &name) { return name == written && !before.contains(name); });
    QCOMPARE(after, before);
}

void SaveFileTest::protectedTargets()
{
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0; // whom no protection stops
    QVERIFY(::chmod(qPrintable(m_folder->path()), 0777) == 0);
    QVERIFY(::chmod(qPrintable(path(u"folder"_s)), 0555) == 0);
    QVERIFY(::chmod(qPrintable(path(u"old.txt"_s)), 0444) == 0);
    QVERIFY(!isRoot || seteuid(nobody) == 0);
    const auto inFolder = save(u"folder/file.txt"_s, Existing::Keep);
    const auto old = save(u"old.txt"_s, Existing::Replace);
    const auto beside = save(u"file.txt"_s, Existing::Keep);
    QVERIFY(!isRoot || seteuid(0) == 0);
    QVERIFY(::chmod(qPrintable(path(u"folder"_s)), 0755) == 0); // so that it can be taken away
    QCOMPARE(inFolder, Reason::NoPermission);
    QCOMPARE(old, Reason::NoPermission);
    QCOMPARE(beside, std::nullopt);
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray("old"));
}

/// A limit to the size of files stops a write half-way, as a full disk does.
void SaveFileTest::noSpace()
{
    const auto all = names();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &before) == 0);
    const rlimit little = {.rlim_cur = 10, .rlim_max = before.rlim_max};
    QVERIFY(setrlimit(RLIMIT_FSIZE, &little) == 0);
    const auto fresh = save(u"fresh.txt"_s, Existing::Keep, QByteArray(100, 'x'));
    const auto old = save(u"old.txt"_s, Existing::Replace, QByteArray(100, 'x'));
    QVERIFY(setrlimit(RLIMIT_FSIZE, &before) == 0);
    QCOMPARE(fresh, Reason::NoSpace);
    QCOMPARE(old, Reason::NoSpace);
    QCOMPARE(contents(path(u"old.txt"_s)), QByteArray("old"));
    QCOMPARE(names(), all);
}

/// A new file is as open as the process makes its files, a replaced one as it was; a pipe stays one.
void SaveFileTest::modes()
{
    QVERIFY(::chmod(qPrintable(path(u"old.txt"_s)), 0604) == 0);
    QVERIFY(::mkfifo(qPrintable(path(u"pipe"_s)), 0600) == 0);
    const int reader = ::open(qPrintable(path(u"pipe"_s)), O_RDONLY | O_NONBLOCK);
    const auto before = ::umask(027);
    const bool isSaved = !save(u"fresh.txt"_s, Existing::Keep) && !save(u"old.txt"_s, Existing::Replace) &&
                         !save(u"pipe"_s, Existing::Keep);
    ::umask(before);
    QByteArray bytes(3, 0);
    QCOMPARE(::read(reader, bytes.data(), 3), 3);
    ::close(reader);
    int unnamed[2] = {};
    QVERIFY(::pipe(unnamed) == 0);
    QVERIFY(saveFile("/dev/fd/" + std::to_string(unnamed[1]), "new", Existing::Keep));
    QCOMPARE(::read(unnamed[0], bytes.data(), 3), 3);
    ::close(unnamed[0]);
    ::close(unnamed[1]);
    QVERIFY(isSaved && bytes == "new");
    QCOMPARE(mode(u"fresh.txt"_s), 0640u);
    QCOMPARE(mode(u"old.txt"_s), 0604u);
}

/// What a program that was killed has left is gone; what another is writing, or is none of ours, stays.
void SaveFileTest::removesTheAbandoned()
{
    const auto abandoned = u".quillmark-0123456789abcdef"_s;
    const auto held = u".quillmark-0123456789abcde0"_s;
    const QStringList others = {u".quillmark-notes"_s, u".quillmark-0123456789abcdef0"_s,
                                u"quillmark-0123456789abcdef"_s};
    auto expected = names() + others + QStringList{held, u"fresh.txt"_s};
    for (const auto &name : others + QStringList{abandoned, held})
        QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
    const int descriptor = ::open(qPrintable(path(held)), O_RDONLY);
    QCOMPARE(::flock(descriptor, LOCK_EX), 0);
    QVERIFY(!save(u"fresh.txt"_s, Existing::Keep));
    ::close(descriptor);
    auto found = names();
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(SaveFileTest)
#include "SaveFileTest.moc"
