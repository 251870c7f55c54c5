// SPDX-License-Identifier: MIT
#include "HistoryFilter.h"

#include "HistoryRow.h"
#include "ShownConnections.h"

#include <QHash>
#include <QTableWidget>

#include <algorithm>
#include <tuple>
#include <utility>

namespace refdialer
{

namespace
{

bool isMark(QChar character)
{
    return character.isMark();
}

/// What is left of a text where neither case nor accents count, in any language: the
/// Turkish letters I with and without a dot are the same one here.
QString folded(const QString &text)
{
    QString letters = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    letters.truncate(int(std::remove_if(letters.begin(), letters.end(), isMark) - letters.begin()));
    return letters.replace(QChar(0x131), QLatin1Char('i'));
}

/// Looks at each name once: many connections share one.
class ProfileFilter
{
public:
    explicit ProfileFilter(const QString &part)
        : m_part(folded(part.trimmed()))
    {
    }

    bool matches(const QTableWidget &table, int row)
    {
        if (m_part.isEmpty())
            return true;
        const QTableWidgetItem *const cell = table.item(row, int(HistoryColumn::Profile));
        const QString name = cell ? cell->text() : QString();
        const auto known = m_known.constFind(name);
        if (known != m_known.constEnd())
            return *known;
        return *m_known.insert(name, folded(name).contains(m_part));
    }

private:
    const QString m_part;
    QHash<QString, bool> m_known;
};

/// The days in either order: while somebody changes both, the first may be after the last.
class DayFilter
{
public:
    DayFilter(QDate first, QDate last)
        : m_isBounded(first.isValid() || last.isValid())
        , m_first(first)
        , m_last(last)
    {
        if (first.isValid() && last.isValid() && last < first)
            std::swap(m_first, m_last);
    }

    bool matches(const QTableWidget &table, int row) const
    {
        if (!m_isBounded)
            return true;
        const QTableWidgetItem *const cell = table.item(row, int(HistoryColumn::Start));
        const QDate day = cell ? cell->data(Qt::DisplayRole).toDateTime().date() : QDate();
        return day.isValid() && (!m_first.isValid() || m_first <= day) &&
               (!m_last.isValid() || day <= m_last);
    }

private:
    const bool m_isBounded;
    QDate m_first;
    QDate m_last;
};

} // namespace

bool HistoryFilter::isSearch() const
{
    return !profile.trimmed().isEmpty() || firstDay.isValid() || lastDay.isValid();
}

bool operator==(const HistoryFilter &a, const HistoryFilter &b)
{
    const auto fields = [](const HistoryFilter &filter) {
        return std::tie(filter.profile, filter.firstDay, filter.lastDay, filter.shortestSeconds);
    };
    return fields(a) == fields(b);
}

RowFilter rowFilter(const QTableWidget &table, const ShownConnections &shown,
                    const HistoryFilter &filter)
{
    return [&table, &shown, shortest = filter.shortestSeconds,
            profiles = ProfileFilter(filter.profile),
            days = DayFilter(filter.firstDay, filter.lastDay)](int row) mutable {
        return shown.values(row).connectedSeconds >= shortest && profiles.matches(table, row) &&
               days.matches(table, row);
    };
}

} // namespace refdialer
