// SPDX-License-Identifier: MIT
#include "WindowView.h"

#include "CommonUtils.h"
#include "apps/common/RecordingChoices.h"
#include "refhost/libcore/Host.h"

#include <QStringList>
#include <QWidget>

namespace refdialer
{

namespace
{

const char *const geometryKey = "windowGeometry";
const char *const pageKey = "page";
const char *const orderKey = "order";

const char *const ascending = "ascending";
const char *const descending = "descending";

constexpr int charactersInWindow = 148;
constexpr int linesInWindow = 36;

/// As HistoryColumn counts them.
const QStringList &columnNames()
{
    static const QStringList names = {QStringLiteral("profile"),  QStringLiteral("start"),
                                      QStringLiteral("end"),      QStringLiteral("duration"),
                                      QStringLiteral("uploaded"), QStringLiteral("downloaded")};
    return names;
}

/// "start descending"
QString textOf(const HistoryOrder &order)
{
    const bool isAscending = order.direction == Qt::AscendingOrder;
    return columnNames().at(int(order.column)) + QLatin1Char(' ') +
           QLatin1String(isAscending ? ascending : descending);
}

HistoryOrder orderIn(const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '));
    const int column = int(columnNames().indexOf(words.first()));
    const bool isAscending = words.last() == QLatin1String(ascending);
    const bool isDescending = words.last() == QLatin1String(descending);
    if (words.size() != 2 || column < 0 || (!isAscending && !isDescending))
        return {};
    return {HistoryColumn(column), isAscending ? Qt::AscendingOrder : Qt::DescendingOrder};
}

} // namespace

QSize usualSizeOf(const QWidget &window)
{
    const QFontMetrics font = window.fontMetrics();
    return {charactersInWindow * font.averageCharWidth(), linesInWindow * font.lineSpacing()};
}

WindowView storedWindowView()
{
    WindowView view;
    view.geometry = QByteArray::fromBase64(
        CommonUtils::GetSettings(common::settingsGroup, geometryKey).toLatin1());
    view.page = CommonUtils::GetSettings(common::settingsGroup, pageKey).toInt();
    view.order = orderIn(CommonUtils::GetSettings(common::settingsGroup, orderKey));
    return view;
}

bool storeWindowView(const WindowView &view)
{
    const auto store = [](const char *key, const QString &value) {
        return refhost::storeSetting(common::settingsGroup, key, value);
    };
    const bool isGeometryStored = store(geometryKey, QString::fromLatin1(view.geometry.toBase64()));
    const bool isPageStored = store(pageKey, QString::number(view.page));
    return store(orderKey, textOf(view.order)) && isGeometryStored && isPageStored;
}

} // namespace refdialer
