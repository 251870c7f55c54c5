// SPDX-License-Identifier: MIT
// What is spooled on a disk that can or cannot make a file without a name. The system's
// answer is this program's own: its open stands before the C library's.
#include "history/ConnectionSpool.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>

#include <cerrno>
#include <system_error>

namespace
{

int answerToNameless = 0; ///< an error, or 0 for the system's

} // namespace

extern "C" int openBeforeTheSystem(const char *path, int flags, mode_t mode) asm("open");
int openBeforeTheSystem(const char *path, int flags, mode_t mode)
{
    if ((flags & O_TMPFILE) == O_TMPFILE && answerToNameless != 0) {
        errno = answerToNameless;
        return -1;
    }
    return openat(AT_FDCWD, path, flags, mode);
}

class ConnectionSpoolTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { answerToNameless = 0; }

    void keepsMoreThanTheMemoryTakes_data();
    void keepsMoreThanTheMemoryTakes();
};

void ConnectionSpoolTest::keepsMoreThanTheMemoryTakes_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("error");
    QTest::newRow("in a file without a name") << 0 << 0;
    QTest::newRow("where the disk has none such") << EOPNOTSUPP << 0;
    QTest::newRow("where the system has none such") << EISDIR << 0;
    QTest::newRow("not where nothing may be written") << EROFS << EROFS;
}

void ConnectionSpoolTest::keepsMoreThanTheMemoryTakes()
{
    QFETCH(int, answer);
    answerToNameless = answer;
    const QTemporaryDir folder;
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    history::ConnectionSpool spool;
    history::Connection connection;
    int error = 0;
    try {
        for (const char letter : {'a', 'b', 'c'}) {
            connection.profile = std::string(1000000, letter);
            spool.add(connection);
        }
    } catch (const std::system_error &exception) {
        error = exception.code().value();
    }
    QTEST(error, "error");
    QVERIFY(QDir(folder.path()).isEmpty());
    if (error != 0)
        return;
    spool.rewind();
    for (const char letter : {'a', 'b', 'c'}) {
        QVERIFY(spool.next(connection));
        QVERIFY(connection.profile == std::string(1000000, letter));
    }
    QVERIFY(!spool.next(connection));
}

QTEST_GUILESS_MAIN(ConnectionSpoolTest)

#include "tst_connectionspool.moc"
