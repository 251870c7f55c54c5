// SPDX-License-Identifier: MIT
#include "recorder/LockFile.h"
#include "recorder/RecorderLock.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

using recorder::Problem;
using recorder::RecorderLock;

using Outcome = RecorderLock::Outcome;

namespace
{

constexpr unsigned nobody = 65534;

/// Lets file permissions bind this process while it lasts, even if it is root's.
class AsNobody
{
public:
    AsNobody()
        : m_isNobody(geteuid() == 0 && seteuid(nobody) == 0)
    {
    }
    ~AsNobody()
    {
        if (m_isNobody && seteuid(0) != 0)
            qFatal("the test cannot become root again");
    }
    AsNobody(const AsNobody &) = delete;
    AsNobody &operator=(const AsNobody &) = delete;

private:
    const bool m_isNobody;
};

/// What the kernel tells of locks and processes, which this thread sees an empty folder instead
/// of while it lasts.
class HiddenLocks
{
public:
    HiddenLocks()
        : m_areHidden(unshare(CLONE_NEWNS) == 0 &&
                      mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      mount("none", place, "tmpfs", 0, nullptr) == 0)
    {
    }
    ~HiddenLocks()
    {
        if (m_areHidden)
            umount2(place, MNT_DETACH);
    }
    HiddenLocks(const HiddenLocks &) = delete;
    HiddenLocks &operator=(const HiddenLocks &) = delete;

    bool areHidden() const { return m_areHidden; }

private:
    static constexpr const char *place = "/proc";
    const bool m_areHidden;
};

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray textIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray introduction("123\nrefdialer\n");

using Obstruct = std::function<bool(const QByteArray &path, const QByteArray &other)>;

} // namespace

Q_DECLARE_METATYPE(Obstruct)

class RecorderLockTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void excludesOthersWhileItIsHeld();
    void hasOneHolderAmongManyThatTakeAndFreeIt();
    void isPrivate_data();
    void isPrivate();
    void takesAFileThatItsOwnerMayNotOpen();
    void leavesAnothersFileAlone();
    void freesAFileThatWasMoved();
    void leavesAloneWhatIsNoLockFile_data();
    void leavesAloneWhatIsNoLockFile();
    void replacesAnotherUsersFileThatNobodyHolds();
    void leavesAnotherUsersLock();
    void leavesAnotherUsersFileInTheirFolder();
    void leavesAFileThatAnotherProcessReplaces();
    void removesNothingThatWasPutInAFilesPlace();
    void leavesAFileWhereNoLocksAreShown();
    void theSuperuserLeavesAUsersFile();
    void saysWhyItCannotBeTaken();

private:
    bool own(const QString &path) const;
    bool leaveSuperusersFile() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_store;
    QString m_file;
};

void RecorderLockTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = m_folder->filePath(QStringLiteral("connections.db"));
    m_file = m_store + ".recorder";
    QVERIFY(QFile(m_store).open(QIODevice::WriteOnly));
}

void RecorderLockTest::cleanup()
{
    m_folder.reset();
}

/// Hands it to nobody where this process can become that.
bool RecorderLockTest::own(const QString &path) const
{
    return geteuid() != 0 || chown(QFile::encodeName(path).constData(), nobody, nobody) == 0;
}

/// What a recorder that was started with the superuser's rights and killed leaves
/// behind, and its user may not open.
bool RecorderLockTest::leaveSuperusersFile() const
{
    return write(m_file, introduction) &&
           QFile::setPermissions(m_file, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void RecorderLockTest::excludesOthersWhileItIsHeld()
{
    RecorderLock first(m_store);
    RecorderLock second(m_store);
    QCOMPARE(first.take(), Outcome::Taken);
    QCOMPARE(second.take(), Outcome::HeldByAnother);
    QCOMPARE(second.problem().process, QCoreApplication::applicationPid());
    QCOMPARE(second.problem().program, QCoreApplication::applicationName());
    first.free();
    QCOMPARE(second.take(), Outcome::Taken);
}

/// Who frees it removes its file, which others have open by then.
void RecorderLockTest::hasOneHolderAmongManyThatTakeAndFreeIt()
{
    std::atomic<int> holders = 0;
    std::atomic<bool> wasShared = false;
    const auto takeAndFree = [&] {
        RecorderLock lock(m_store);
        for (int i = 0; i < 3000; ++i) {
            if (lock.take() != Outcome::Taken)
                continue;
            wasShared = wasShared || ++holders > 1;
            std::this_thread::yield();
            --holders;
            lock.free();
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(takeAndFree);
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(!wasShared);
}

void RecorderLockTest::isPrivate_data()
{
    QTest::addColumn<int>("mask");
    QTest::newRow("a umask that takes nothing") << 0;
    QTest::newRow("a umask that takes everything") << 0777;
}

void RecorderLockTest::isPrivate()
{
    QFETCH(int, mask);
    const mode_t before = umask(static_cast<mode_t>(mask));
    RecorderLock lock(m_store);
    const Outcome outcome = lock.take();
    umask(before);
    QCOMPARE(outcome, Outcome::Taken);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(m_file).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 0777U), 0600);
}

void RecorderLockTest::takesAFileThatItsOwnerMayNotOpen()
{
    QVERIFY(QFile(m_file).open(QIODevice::WriteOnly));
    QVERIFY(QFile::setPermissions(m_file, QFileDevice::Permissions()));
    QVERIFY(own(m_folder->path()) && own(m_store) && own(m_file));
    const AsNobody user;
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Taken);
}

/// Somebody has removed the file of a lock that is held.
void RecorderLockTest::leavesAnothersFileAlone()
{
    RecorderLock first(m_store);
    RecorderLock second(m_store);
    QCOMPARE(first.take(), Outcome::Taken);
    QVERIFY(QFile::remove(m_file));
    QCOMPARE(second.take(), Outcome::Taken);
    first.free();
    QCOMPARE(first.take(), Outcome::HeldByAnother);
}

/// Or a store that was moved with it would seem to be recorded into.
void RecorderLockTest::freesAFileThatWasMoved()
{
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Taken);
    const QString moved = m_folder->filePath("moved.db");
    QVERIFY(QFile::rename(m_file, moved + ".recorder"));
    QVERIFY(recorder::isRecordedInto(moved));
    lock.free();
    QVERIFY(!recorder::isRecordedInto(moved));
}

void RecorderLockTest::leavesAloneWhatIsNoLockFile_data()
{
    QTest::addColumn<Obstruct>("obstruct");
    // Whoever may write beside a store must not have the superuser write elsewhere.
    QTest::newRow("a symbolic link") << Obstruct([](const QByteArray &path, const QByteArray &to) {
        return symlink(to.constData(), path.constData()) == 0;
    });
    QTest::newRow("a hard link") << Obstruct([](const QByteArray &path, const QByteArray &to) {
        return link(to.constData(), path.constData()) == 0;
    });
    QTest::newRow("a pipe") << Obstruct([](const QByteArray &path, const QByteArray &) {
        return mkfifo(path.constData(), 0600) == 0;
    });
    QTest::newRow("a folder") << Obstruct([](const QByteArray &path, const QByteArray &) {
        return mkdir(path.constData(), 0700) == 0;
    });
}

void RecorderLockTest::leavesAloneWhatIsNoLockFile()
{
    QFETCH(Obstruct, obstruct);
    const QString other = m_folder->filePath(QStringLiteral("other"));
    QVERIFY(write(other, "text"));
    QVERIFY(QFile::setPermissions(other, QFileDevice::ReadOwner));
    const auto permissions = QFileInfo(other).permissions();
    QVERIFY(obstruct(QFile::encodeName(m_file), QFile::encodeName(other)));
    {
        RecorderLock lock(m_store);
        QCOMPARE(lock.take(), Outcome::Refused);
        QVERIFY(lock.problem().obstacle != Problem::Obstacle::None);
    }
    QCOMPARE(textIn(other), QByteArray("text"));
    QCOMPARE(QFileInfo(other).permissions(), permissions);
    struct stat status = {};
    QCOMPARE(lstat(QFile::encodeName(m_file).constData(), &status), 0);
}

void RecorderLockTest::replacesAnotherUsersFileThatNobodyHolds()
{
    if (geteuid() != 0)
        QSKIP("only the superuser can make another user's file", "");
    QVERIFY(leaveSuperusersFile());
    QVERIFY(own(m_folder->path()));
    const AsNobody user;
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Taken);
    QCOMPARE(QFileInfo(m_file).ownerId(), nobody);
    RecorderLock second(m_store);
    QCOMPARE(second.take(), Outcome::HeldByAnother);
}

void RecorderLockTest::leavesAnotherUsersLock()
{
    if (geteuid() != 0)
        QSKIP("only the superuser can make another user's file", "");
    RecorderLock first(m_store);
    QCOMPARE(first.take(), Outcome::Taken);
    const QByteArray text = textIn(m_file);
    QVERIFY(own(m_folder->path()));
    {
        const AsNobody user;
        RecorderLock second(m_store);
        QCOMPARE(second.take(), Outcome::HeldByAnother);
        QVERIFY(second.problem().program.isEmpty());
    }
    QCOMPARE(textIn(m_file), text);
    QCOMPARE(QFileInfo(m_file).ownerId(), 0U);
}

void RecorderLockTest::leavesAnotherUsersFileInTheirFolder()
{
    if (geteuid() != 0)
        QSKIP("only the superuser can make another user's file", "");
    QVERIFY(leaveSuperusersFile());
    QVERIFY(QFile::setPermissions(m_folder->path(), QFileDevice::Permissions(0x7777)));
    {
        const AsNobody user;
        RecorderLock lock(m_store);
        QCOMPARE(lock.take(), Outcome::Refused);
    }
    QCOMPARE(textIn(m_file), introduction);
}

void RecorderLockTest::leavesAFileThatAnotherProcessReplaces()
{
    if (geteuid() != 0)
        QSKIP("only the superuser can make another user's file", "");
    QVERIFY(leaveSuperusersFile());
    QVERIFY(own(m_folder->path()));
    // As that one does while it is at it.
    const int folder = open(QFile::encodeName(m_folder->path()).constData(), O_RDONLY | O_CLOEXEC);
    QCOMPARE(flock(folder, LOCK_EX), 0);
    {
        const AsNobody user;
        RecorderLock lock(m_store);
        QCOMPARE(lock.take(), Outcome::HeldByAnother);
        QCOMPARE(QFileInfo(m_file).ownerId(), 0U);
        close(folder);
        QCOMPARE(lock.take(), Outcome::Taken);
    }
}

/// That one was quicker.
void RecorderLockTest::removesNothingThatWasPutInAFilesPlace()
{
    QVERIFY(write(m_file, "former"));
    const std::string path = QFile::encodeName(m_file).toStdString();
    const auto former = recorder::statusAt(path);
    QVERIFY(QFile::rename(m_file, m_folder->filePath("former")));
    QVERIFY(write(m_file, "new"));
    QCOMPARE(recorder::removeUnlocked(path, *former), recorder::Removal::Done);
    QCOMPARE(textIn(m_file), QByteArray("new"));
    QCOMPARE(recorder::removeUnlocked(path, *recorder::statusAt(path)), recorder::Removal::Done);
    QVERIFY(!QFile::exists(m_file));
}

/// It may be held.
void RecorderLockTest::leavesAFileWhereNoLocksAreShown()
{
    QVERIFY(write(m_file, introduction));
    const std::string path = QFile::encodeName(m_file).toStdString();
    const auto file = recorder::statusAt(path);
    {
        const HiddenLocks hidden;
        if (!hidden.areHidden())
            QSKIP("a mount of its own is not permitted", "");
        QCOMPARE(recorder::removeUnlocked(path, *file), recorder::Removal::Busy);
        QVERIFY(recorder::isRecordedInto(m_store));
    }
    QCOMPARE(textIn(m_file), introduction);
}

void RecorderLockTest::theSuperuserLeavesAUsersFile()
{
    if (geteuid() != 0)
        QSKIP("only the superuser can open another user's file", "");
    QVERIFY(write(m_file, "some text"));
    QVERIFY(own(m_folder->path()) && own(m_file));
    {
        RecorderLock lock(m_store);
        QCOMPARE(lock.take(), Outcome::Refused);
    }
    QCOMPARE(textIn(m_file), QByteArray("some text"));
    QCOMPARE(QFileInfo(m_file).ownerId(), nobody);
}

void RecorderLockTest::saysWhyItCannotBeTaken()
{
    QVERIFY(own(m_folder->path()));
    QVERIFY(
        QFile::setPermissions(m_folder->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    const AsNobody user;
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Failed);
    QCOMPARE(lock.problem().reason, QStringLiteral("Permission denied"));
    QCOMPARE(lock.problem().path, m_file);
}

QTEST_GUILESS_MAIN(RecorderLockTest)

#include "tst_recorderlock.moc"
