// SPDX-License-Identifier: MIT
#include "RecorderLock.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using refhost::RecorderLock;

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

} // namespace

class RecorderLockTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void excludesOthersWhileItIsHeld();
    void isPrivate();
    void takesAFileThatItsOwnerMayNotOpen();
    void leavesAnothersFileAlone();
    void followsNoLink();
    void saysWhyItCannotBeTaken();

private:
    bool own(const QString &path) const;

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

void RecorderLockTest::excludesOthersWhileItIsHeld()
{
    RecorderLock first(m_store);
    RecorderLock second(m_store);
    QCOMPARE(first.take(), Outcome::Taken);
    QCOMPARE(second.take(), Outcome::HeldByAnother);
    QCOMPARE(second.holder()->process, QCoreApplication::applicationPid());
    QCOMPARE(second.holder()->program, QCoreApplication::applicationName());
    first.free();
    QCOMPARE(second.take(), Outcome::Taken);
}

void RecorderLockTest::isPrivate()
{
    const mode_t before = umask(0);
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Taken);
    umask(before);
    QCOMPARE(QFileInfo(m_file).permissions() & QFileDevice::Permissions(0x77), // group and others
             QFileDevice::Permissions());
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

/// Whoever may write beside a store must not have the superuser write elsewhere.
void RecorderLockTest::followsNoLink()
{
    const QString target = m_folder->filePath(QStringLiteral("target"));
    QFile file(target);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("text"), qint64{4});
    file.close();
    QVERIFY(QFile::link(target, m_file));
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Failed);
    QCOMPARE(file.size(), qint64{4});
}

void RecorderLockTest::saysWhyItCannotBeTaken()
{
    QVERIFY(own(m_folder->path()));
    QVERIFY(
        QFile::setPermissions(m_folder->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    const AsNobody user;
    RecorderLock lock(m_store);
    QCOMPARE(lock.take(), Outcome::Failed);
    QCOMPARE(lock.errorString(), QStringLiteral("Permission denied"));
}

QTEST_GUILESS_MAIN(RecorderLockTest)

#include "tst_recorderlock.moc"
