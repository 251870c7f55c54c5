// SPDX-License-Identifier: MIT
// SDK records of arbitrary bytes through conversion, table and release.
#include "ConnectionHistoryDlg.h"
#include "Fuzz.h"
#include "NetInfoRecordLogic.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QDateTime>
#include <QLoggingCategory>
#include <QTableWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <optional>
#include <string>

using scripted::Host;

namespace
{

/// The field's number if it is plain digits and at most `largest`.
template <std::size_t Size>
std::optional<long long> plainNumber(const char (&field)[Size], long long largest = 2147483647)
{
    const std::string text(field, std::find(field, field + Size, '\0'));
    const bool isPlain = !text.empty() && text.size() <= 15 &&
                         text.find_first_not_of("0123456789") == std::string::npos;
    if (!isPlain || std::stoll(text) > largest)
        return std::nullopt;
    return std::stoll(text);
}

std::string clockText(long long seconds)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02lld:%02lld:%02lld", seconds / 3600, seconds % 3600 / 60,
                  seconds % 60);
    return text;
}

/// Whether this is the volume in its unit, with two decimals; a tie is
/// for Qt to round up or down.
bool isVolume(const std::string &text, long long bytes)
{
    double size = static_cast<double>(bytes) / 1024;
    const char *unit = " KB";
    if (size >= 1048576) {
        size /= 1048576;
        unit = " GB";
    } else if (size >= 1024) {
        size /= 1024;
        unit = " MB";
    }
    const std::size_t point = text.find('.');
    return point != std::string::npos && text.substr(std::min(point + 3, text.size())) == unit &&
           std::abs(std::stod(text) - size) < 0.005 + 1e-9;
}

/// Qt takes a byte order mark at the start for what it is; what is behind
/// it then depends on the mark.
bool hasByteOrderMark(const _KORA_ST_CONNRECORD &record)
{
    return record.szProfileName[0] == u'\xfeff' || record.szProfileName[0] == u'\xfffe';
}

QString profileOf(const _KORA_ST_CONNRECORD &record)
{
    QString text;
    for (const char16_t unit : record.szProfileName) {
        if (unit == 0)
            break;
        text += QChar(unit);
    }
    return text;
}

constexpr long long largestVolume = 999999999999999;

/// What went in as a proper value must come out of the row as the same one.
void checkRow(QTableWidget &table, int row, const _KORA_ST_CONNRECORD &record)
{
    const auto data = [&](int column) { return table.item(row, column)->data(Qt::DisplayRole); };
    fuzz::require(hasByteOrderMark(record) || data(0).toString() == profileOf(record),
                  "the profile is the record's");
    if (const auto start = plainNumber(record.szStartTime))
        fuzz::require(data(1).toDateTime().toSecsSinceEpoch() == *start, "the start is the same");
    if (const auto end = plainNumber(record.szEndTime))
        fuzz::require(data(2).toDateTime().toSecsSinceEpoch() == *end, "the end is the same");
    if (const auto seconds = plainNumber(record.szDuration))
        fuzz::require(data(3).toString().toStdString() == clockText(*seconds), "the duration too");
    if (const auto bytes = plainNumber(record.szUploadBytes, largestVolume))
        fuzz::require(isVolume(data(4).toString().toStdString(), *bytes), "the upload too");
    if (const auto bytes = plainNumber(record.szDownloadBytes, largestVolume))
        fuzz::require(isVolume(data(5).toString().toStdString(), *bytes), "the download too");
}

QTableWidget *historyTable()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *table = qobject_cast<QTableWidget *>(widget))
            return table;
    }
    return nullptr;
}

int rowOf(QTableWidget &table, int id)
{
    const ConnectionRecord *wanted = NetInfoRecordLogic::Instance()->m_records.value(id);
    for (int row = 0; row < table.rowCount(); ++row) {
        const auto link = table.item(row, 0)->data(Qt::UserRole).toULongLong();
        if (reinterpret_cast<const ConnectionRecord *>(static_cast<quintptr>(link)) == wanted)
            return row;
    }
    return -1;
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    // A zone without a repeated hour, in which local time tells every second.
    qputenv("TZ", "UTC");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argumentCount = 1;
    static char name[] = "fuzz_sdkrecord";
    static char *arguments[] = {name, nullptr};
    static QApplication application(argumentCount, arguments);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    ConnectionHistoryDlg::Instance()->Init();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::size_t recordSize = sizeof(_KORA_ST_CONNRECORD);
    Host &host = Host::instance();
    const std::size_t count = std::min<std::size_t>(1 + size / recordSize, 4);
    host.records.fill(_KORA_ST_CONNRECORD(), static_cast<int>(count));
    if (size > 0)
        std::memcpy(static_cast<void *>(host.records.data()), data,
                    std::min(size, count * recordSize));
    host.lastRecord = host.records.last();

    NetInfoRecordLogic &logic = *NetInfoRecordLogic::Instance();
    ConnectionHistoryDlg &window = *ConnectionHistoryDlg::Instance();
    window.Init();
    QTableWidget &table = *historyTable();
    fuzz::require(table.rowCount() == host.records.size(), "there is a row for each record");
    for (int id = 0; id < host.records.size(); ++id) {
        const int row = rowOf(table, id);
        fuzz::require(row >= 0, "the record has a row");
        checkRow(table, row, host.records.at(id));
    }
    fuzz::require(logic.GetLastConnectedRecord(), "the last record is there");
    fuzz::require(hasByteOrderMark(host.lastRecord) ||
                      logic.m_lastRecord.m_strProfileName == profileOf(host.lastRecord),
                  "the last profile is the record's");

    host.records.clear();
    host.calls.clear();
    host.translated.clear();
    window.Init(); // gives every record back
    fuzz::require(host.openArrays == 0, "every array is given back");
    return 0;
}
