// SPDX-License-Identifier: MIT
#include "UsageChartAccessible.h"

#include "UsageChart.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace refdialer
{

namespace
{

/// One bar. There is no object behind it but the chart.
class AccessibleBar : public QAccessibleInterface
{
public:
    AccessibleBar(UsageChart *chart, int bar)
        : m_chart(chart)
        , m_bar(bar)
    {
    }

    bool isValid() const override { return m_chart && m_bar < int(m_chart->bars().size()); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_chart.data());
    }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? m_chart->textOf(m_bar) : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override {}
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect place = m_chart->placeOf(m_bar);
        return {m_chart->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.invalid = !isValid();
        state.selected = isValid() && m_bar == m_chart->current();
        state.focused = state.selected && m_chart->hasFocus();
        return state;
    }

private:
    const QPointer<UsageChart> m_chart;
    const int m_bar;
};

class AccessibleChart : public QAccessibleWidget
{
public:
    explicit AccessibleChart(UsageChart *chart)
        : QAccessibleWidget(chart, QAccessible::List)
        , m_chart(*chart)
    {
    }
    ~AccessibleChart() override
    {
        for (const QAccessible::Id id : m_bars)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return int(m_chart.bars().size()); }
    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (int(m_bars.size()) <= index)
            m_bars.push_back(QAccessible::registerAccessibleInterface(
                new AccessibleBar(&m_chart, int(m_bars.size()))));
        return QAccessible::accessibleInterface(m_bars[std::size_t(index)]);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; index < int(m_bars.size()) && index < childCount(); ++index) {
            if (QAccessible::accessibleInterface(m_bars[std::size_t(index)]) == child)
                return index;
        }
        return -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint point = m_chart.mapFromGlobal(QPoint(x, y));
        for (int index = 0; index < childCount(); ++index) {
            if (m_chart.placeOf(index).contains(point))
                return child(index);
        }
        return nullptr;
    }
    QAccessibleInterface *focusChild() const override
    {
        return m_chart.hasFocus() ? child(m_chart.current()) : nullptr;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return QAccessibleWidget::text(kind);
        return m_chart.current() < 0 ? QString() : m_chart.textOf(m_chart.current());
    }

private:
    UsageChart &m_chart;
    mutable std::vector<QAccessible::Id> m_bars; ///< those asked for so far
};

QAccessibleInterface *accessibleFor(const QString & /*className*/, QObject *object)
{
    auto *const chart = qobject_cast<UsageChart *>(object);
    return chart ? new AccessibleChart(chart) : nullptr;
}

} // namespace

void makeChartsAccessible()
{
    QAccessible::installFactory(accessibleFor); // once only, says Qt
}

void tellAssistants(UsageChart &chart)
{
    if (chart.current() < 0 || !chart.hasFocus())
        return;
    QAccessibleEvent event(&chart, QAccessible::Focus);
    event.setChild(chart.current());
    QAccessible::updateAccessibility(&event);
}

} // namespace refdialer
