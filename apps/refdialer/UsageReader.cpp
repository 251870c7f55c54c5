// SPDX-License-Identifier: MIT
#include "UsageReader.h"

#include "apps/common/StoreErrorText.h"

#include <QDateTime>
#include <QTimeZone>

#include <tuple>
#include <utility>

namespace refdialer
{

using history::Result;
using history::Store;
using history::StoreError;

bool UsageReader::Occasion::operator==(const Occasion &other) const
{
    return std::tie(revision, today, offset, zone) ==
           std::tie(other.revision, other.today, other.offset, other.zone);
}

UsageReader::UsageReader(const std::string &storePath, QObject *parent)
    : QObject(parent)
    , m_store(storePath)
{
}

void UsageReader::read(const UsageRequest &request)
{
    m_request = request;
    m_occasion.reset();
    m_isAnotherWanted = m_isReading;
    look();
}

void UsageReader::look()
{
    if (std::exchange(m_isReading, true))
        return;
    m_store.read(
        this,
        [request = m_request, former = m_occasion](const Store &store) {
            return readFigures(store, request, former);
        },
        [this](const Result<Answer> &answer) { take(answer); });
}

/// The occasion first: what changes while figures are read makes another look worth while.
Result<UsageReader::Answer> UsageReader::readFigures(const Store &store,
                                                     const UsageRequest &request,
                                                     const std::optional<Occasion> &former)
{
    const auto revision = store.revision();
    if (!revision)
        return revision.error();
    const QDateTime now = QDateTime::currentDateTime();
    const Occasion occasion{revision.value(), now.date(), now.offsetFromUtc(),
                            QTimeZone::systemTimeZoneId()};
    if (occasion == former)
        return Answer{occasion, std::nullopt};
    auto figures = usageFigures(store, request, occasion.today);
    if (!figures)
        return figures.error();
    return Answer{occasion, std::move(figures.value())};
}

void UsageReader::take(const Result<Answer> &answer)
{
    m_isReading = false;
    if (std::exchange(m_isAnotherWanted, false))
        return look();
    if (!answer)
        return fail(answer.error());
    m_occasion = answer.value().occasion;
    if (answer.value().figures)
        emit figuresRead(*answer.value().figures);
}

void UsageReader::fail(const StoreError &error)
{
    m_occasion.reset();
    if (error.kind != StoreError::Kind::Locked)
        emit failed(common::storeErrorText(error));
}

} // namespace refdialer
