// SPDX-License-Identifier: MIT
#pragma once

#include "StoreWorker.h"
#include "UsageFigures.h"

#include <QByteArray>
#include <QDate>
#include <QObject>

#include <cstdint>
#include <optional>
#include <string>

namespace refdialer
{

/// Gets the figures of a page of usage, on a thread of its own, and again when the history has
/// changed.
class UsageReader : public QObject
{
    Q_OBJECT

public:
    explicit UsageReader(const std::string &storePath, QObject *parent = nullptr);

    /// Answered later. Of several requests only the last one is.
    void read(const UsageRequest &request);
    /// Answers the last request again, should anything be different.
    void look();

signals:
    void figuresRead(const refdialer::UsageFigures &figures);
    /// A sentence for the user. While another program keeps the history locked, what was
    /// read before holds.
    void failed(const QString &reason);

private:
    /// What figures hold for.
    struct Occasion {
        std::uint64_t revision;
        QDate today;
        int offset;      ///< of local time; tells some zones without a name apart
        QByteArray zone; ///< two of the same offset may differ on other days
        bool operator==(const Occasion &other) const;
    };
    struct Answer {
        Occasion occasion;
        std::optional<UsageFigures> figures; ///< none if the occasion is the same
    };

    static history::Result<Answer> readFigures(const history::Store &store,
                                               const UsageRequest &request,
                                               const std::optional<Occasion> &former);
    void take(const history::Result<Answer> &answer);
    void fail(const history::StoreError &error);

    StoreWorker m_store;
    UsageRequest m_request;
    bool m_isReading = false;
    bool m_isAnotherWanted = false;     ///< since it reads
    std::optional<Occasion> m_occasion; ///< of the last answer to this request
};

} // namespace refdialer
