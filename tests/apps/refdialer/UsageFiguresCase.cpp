// SPDX-License-Identifier: MIT
#include "UsageFiguresCase.h"

#include <QTest>

using history::DataPlan;

QDate dayOf(const char *text)
{
    return QDate::fromString(QLatin1String(text), Qt::ISODate);
}

QString textOf(const std::vector<usage::UsageBar> &bars)
{
    QStringList texts;
    for (const usage::UsageBar &bar : bars) {
        if (bar.total() == 0)
            continue;
        const auto &bytes = bar.bytes;
        texts.append(QString("%1: %2/%3").arg(dayText(bar.first)).arg(bytes[0]).arg(bytes[1]));
        if (bar.hasRoaming())
            texts.last() += QString(" + %1/%2r").arg(bytes[2]).arg(bytes[3]);
    }
    return texts.join(", ");
}

QString spanText(const refdialer::UsageFigures &figures)
{
    return dayText(figures.span.first) + " to " + dayText(figures.span.last());
}

QString namesOf(const std::vector<refdialer::UsageSubject> &subjects)
{
    QStringList names;
    for (const refdialer::UsageSubject &subject : subjects)
        names.append(QString::number(int(subject.kind)) + QString::fromStdString(subject.name));
    return names.join(' ');
}

refdialer::UsageRequest requestFor(const char *day, usage::BarUnit unit)
{
    return {refdialer::UsageSubject(), unit, dayOf(day)};
}

void UsageFiguresCase::store(const QStringList &hours, const std::string &profile)
{
    history::Connection moved;
    moved.profile = profile;
    moved.interfaceName = "wwan0";
    for (const QString &text : hours) {
        const QStringList parts = text.split(' ');
        const QStringList bytes = QString(parts[1]).remove('r').split('/');
        moved.hours.push_back({utcOf(parts[0]), parts[1].endsWith('r'), bytes[1].toLongLong(),
                               bytes[0].toLongLong()});
        moved.uploadedBytes += moved.hours.back().uploadedBytes;
        moved.downloadedBytes += moved.hours.back().downloadedBytes;
    }
    moved.startUtc = moved.hours.front().hourUtc + 1800;
    moved.endUtc = moved.hours.back().hourUtc + 1900;
    auto store = history::Store::openOrCreate(m_path);
    const auto added = store.value().add(moved);
    QVERIFY2(added, added ? "" : added.error().message.c_str());
}

void UsageFiguresCase::storePlan(const std::string &name, const history::PeriodRule &rule,
                                 DataPlan::Network network)
{
    DataPlan plan = planOf(rule);
    plan.name = name;
    plan.network = network;
    QVERIFY(history::Store::openOrCreate(m_path).value().setPlan(plan));
}

refdialer::UsageFigures UsageFiguresCase::figures(const refdialer::UsageRequest &request,
                                                  const char *today) const
{
    const auto store = history::Store::openForReading(m_path);
    const auto read = refdialer::usageFigures(store.value(), request, dayOf(today));
    if (!read)
        qFatal("%s", read.error().message.c_str());
    return read.value();
}
