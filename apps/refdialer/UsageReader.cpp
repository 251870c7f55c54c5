// SPDX-License-Identifier: MIT
#include "UsageReader.h"

#include <utility>

namespace refdialer
{

using history::Result;
using history::Store;
using history::StoreError;

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
        [request = m_request, today = QDate::currentDate(), former = m_occasion](
            const Store &store) { return readFigures(store, request, today, former); },
        [this](const Result<Answer> &answer) { take(answer); });
}

/// The revision first: what is written while figures are read makes another look worth while.
Result<UsageReader::Answer> UsageReader::readFigures(const Store &store,
                                                     const UsageRequest &request,
                                                     const QDate &today,
                                                     const std::optional<Occasion> &former)
{
    const auto revision = store.revision();
    if (!revision)
        return revision.error();
    const Occasion occasion{revision.value(), today};
    if (occasion == former)
        return Answer{occasion, std::nullopt};
    auto figures = usageFigures(store, request, today);
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
        emit failed(QString::fromStdString(error.message));
}

} // namespace refdialer
