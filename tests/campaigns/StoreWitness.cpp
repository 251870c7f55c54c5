// SPDX-License-Identifier: MIT
#include "StoreWitness.h"

#include "RecordedConnection.h"
#include "history/ConnectionFields.h"
#include "history/Store.h"

#include <QList>
#include <QStringList>

#include <SQLiteCpp/Database.h>

#include <sys/stat.h>

using namespace history;

namespace
{

/// Nobody else may have access for a moment. Less than the mode is what a umask
/// leaves to a file whose maker was killed before it could give it the rest.
QString modeComplaint(const QString &path, unsigned int mode)
{
    struct stat status = {};
    if (stat(qPrintable(path), &status) != 0 || (status.st_mode & 07777U & ~mode) == 0)
        return {};
    return QStringLiteral("%1 has the mode 0%2, more than 0%3")
        .arg(path, QString::number(status.st_mode & 07777U, 8), QString::number(mode, 8));
}

QString integrityComplaint(const QString &path)
{
    try {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        const std::string answer = database.execAndGet("PRAGMA integrity_check").getString();
        return answer == "ok" ? QString() : QString::fromStdString(answer);
    } catch (const SQLite::Exception &exception) {
        return QString::fromUtf8(exception.what());
    }
}

QString sentenceAbout(const char *what, std::int64_t number)
{
    return QStringLiteral("Connection %1 is %2").arg(number).arg(QLatin1String(what));
}

} // namespace

void StoreWitness::reset()
{
    *this = StoreWitness();
}

void StoreWitness::take(const QByteArray &line)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3)
        return;
    ++m_acknowledged;
    const std::int64_t number = words.at(1).toLongLong();
    if (words.first() == "begun" || words.first() == "saved") {
        m_saved.insert(number, words.at(2).toLongLong());
    } else if (words.first() == "finished") {
        m_saved.remove(number);
        m_finished.insert(number);
    } else if (words.first() == "removing") {
        m_finished.remove(number);
        m_removing.insert(number);
    } else if (words.first() == "removed") {
        m_removing.remove(number);
        m_removed.insert(number);
    }
}

QString StoreWitness::complaint(const QString &path) const
{
    const QString folder = path.left(path.lastIndexOf(QLatin1Char('/')));
    QStringList complaints = {modeComplaint(folder, 0700)};
    for (const char *const suffix : {"", "-wal", "-shm"})
        complaints.append(modeComplaint(path + QLatin1String(suffix), 0600));
    struct stat status = {};
    const bool isThere = stat(qPrintable(path), &status) == 0;
    if (isThere && status.st_size > 0)
        complaints.append(integrityComplaint(path));
    if (isThere || m_acknowledged > 0)
        complaints.append(contentsComplaint(path));
    complaints.removeAll(QString());
    return complaints.join(QLatin1String("; "));
}

QString StoreWitness::contentsComplaint(const QString &path) const
{
    const auto store = Store::openForReading(path.toStdString());
    if (!store)
        return QString::fromStdString(store.error().message);
    const auto list = store.value().list();
    if (!list)
        return QString::fromStdString(list.error().message);
    const auto open = store.value().listOpen();
    if (!open)
        return QString::fromStdString(open.error().message);
    const QString complaint = listComplaint(list.value());
    return complaint.isEmpty() ? openComplaint(list.value(), open.value()) : complaint;
}

QString StoreWitness::listComplaint(const std::vector<Connection> &list) const
{
    QSet<std::int64_t> seen;
    for (const Connection &connection : list) {
        const std::int64_t number = connection.startUtc;
        if (seen.contains(number))
            return sentenceAbout("doubled", number);
        if (m_removed.contains(number))
            return sentenceAbout("there again after its removal", number);
        if (!hasSameContents(connection, finishedConnection(number)))
            return sentenceAbout("not what was recorded", number);
        seen.insert(number);
    }
    for (const std::int64_t number : m_finished) {
        if (!seen.contains(number))
            return sentenceAbout("missing", number);
    }
    return {};
}

QString StoreWitness::openComplaint(const std::vector<Connection> &list,
                                    const std::vector<OpenConnection> &open) const
{
    // What was finished just before the writer could tell is in the list.
    QSet<std::int64_t> seen;
    for (const Connection &connection : list)
        seen.insert(connection.startUtc);
    for (const OpenConnection &connection : open) {
        const std::int64_t number = connection.startUtc;
        if (m_finished.contains(number) || seen.contains(number))
            return sentenceAbout("both open and finished", number);
        // The last update that was acknowledged, or the one under way.
        if (connection.uploadedBytes < m_saved.value(number, 0))
            return sentenceAbout("older than its last update", number);
        seen.insert(number);
    }
    for (auto saved = m_saved.cbegin(); saved != m_saved.cend(); ++saved) {
        if (!seen.contains(saved.key()))
            return sentenceAbout("lost while open", saved.key());
    }
    return {};
}
