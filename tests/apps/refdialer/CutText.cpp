// SPDX-License-Identifier: MIT
#include "CutText.h"

#include "PaintedText.h"
#include "apps/refdialer/UsageChart.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

namespace
{

struct Shown {
    QString text;
    QSize needed;
    QSize room;

    bool isCut() const { return needed.width() > room.width() || needed.height() > room.height(); }
};

/// One line of text. It may be a little lower than its font says, which is generous,
/// above all where it lends letters to another.
QSize sizeOf(const QWidget &widget, const QString &text)
{
    return {widget.fontMetrics().size(Qt::TextShowMnemonic, text).width(),
            widget.fontMetrics().ascent()};
}

/// Needs no more height than there is.
QSize asHighAs(const QWidget &widget, int width)
{
    return {width, widget.height()};
}

Shown textOf(const QLabel &label)
{
    const QRect room = label.contentsRect().adjusted(label.margin(), label.margin(),
                                                     -label.margin(), -label.margin());
    const bool isMarkup = label.textFormat() == Qt::RichText ||
                          (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (isMarkup) {
        const int height = label.hasHeightForWidth() ? label.heightForWidth(label.width())
                                                     : label.sizeHint().height();
        return {label.text(), {label.minimumSizeHint().width(), height}, label.size()};
    }
    if (!label.wordWrap())
        return {label.text(), sizeOf(label, label.text()), room.size()};
    const QRect endless(0, 0, room.width(), QWIDGETSIZE_MAX);
    return {label.text(),
            label.fontMetrics().boundingRect(endless, Qt::TextWordWrap, label.text()).size(),
            room.size()};
}

QRect roomIn(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto part = [&](QStyle::SubElement element) {
        return button.style()->subElementRect(element, &option, &button);
    };
    if (qobject_cast<const QCheckBox *>(&button))
        return part(QStyle::SE_CheckBoxContents);
    if (qobject_cast<const QRadioButton *>(&button))
        return part(QStyle::SE_RadioButtonContents);
    if (qobject_cast<const QPushButton *>(&button))
        return part(QStyle::SE_PushButtonContents);
    return button.rect();
}

Shown textOf(const QAbstractButton &button)
{
    const auto *const tool = qobject_cast<const QToolButton *>(&button);
    const bool isIconOnly =
        tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
    const QString text = isIconOnly ? QString() : button.text();
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width();
    return {text, sizeOf(button, text) + QSize(icon, 0), roomIn(button).size()};
}

QList<Shown> textsOf(const QTabBar &tabs)
{
    QList<Shown> texts;
    const int padding = tabs.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &tabs);
    for (int i = 0; i < tabs.count(); ++i)
        texts.append({tabs.tabText(i), sizeOf(tabs, tabs.tabText(i)) + QSize(padding, 0),
                      (tabs.tabRect(i) & tabs.rect()).size()});
    return texts;
}

/// Of a section; a list may have to be scrolled to see the rest.
int shownWidth(const QHeaderView &header, int section)
{
    const int begin = header.sectionViewportPosition(section);
    return (QRect(begin, 0, header.sectionSize(section), 1) & header.viewport()->rect()).width();
}

QList<Shown> textsOf(const QHeaderView &header)
{
    QList<Shown> texts;
    for (int i = 0; i < header.count(); ++i) {
        const QString text = header.model()->headerData(i, header.orientation()).toString();
        if (header.orientation() == Qt::Horizontal && !header.isSectionHidden(i))
            texts.append({text, asHighAs(header, header.sectionSizeHint(i)),
                          asHighAs(header, shownWidth(header, i))});
    }
    return texts;
}

QList<Shown> textsOf(const QTableView &table)
{
    QList<Shown> texts;
    const QAbstractItemModel &model = *table.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            if (!table.isRowHidden(row) && !table.isColumnHidden(column))
                texts.append({cell.data().toString(),
                              asHighAs(table, table.sizeHintForIndex(cell).width()),
                              asHighAs(table, table.columnWidth(column))});
        }
    }
    return texts;
}

QList<Shown> textsOf(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    option.frame = box.hasFrame();
    const QSize room =
        box.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
            .size();
    QList<Shown> texts;
    for (int i = 0; i < box.count(); ++i)
        texts.append({box.itemText(i), sizeOf(box, box.itemText(i)), room});
    return texts;
}

Shown textOf(const QLineEdit &edit)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    const QRect room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    return {edit.placeholderText(),
            asHighAs(edit, edit.fontMetrics().horizontalAdvance(edit.placeholderText())),
            asHighAs(edit, room.width())};
}

/// Of a widget whose size hint grows with its text.
Shown textWithin(const QWidget &widget, const QString &text, const QSize &needed)
{
    return {text, asHighAs(widget, needed.width()), asHighAs(widget, widget.width())};
}

/// What the chart draws by itself.
QList<Shown> textsOf(const refdialer::UsageChart &chart)
{
    QList<Shown> texts;
    for (const PaintedText &each : paintedTexts(chart))
        texts.append({each.text, each.place.size().toSize(), each.seen.size().toSize()});
    return texts;
}

QList<Shown> textsOf(const QWidget &widget)
{
    if (const auto *const chart = qobject_cast<const refdialer::UsageChart *>(&widget))
        return textsOf(*chart);
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return {textOf(*label)};
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return {textOf(*button)};
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget))
        return textsOf(*tabs);
    if (const auto *const header = qobject_cast<const QHeaderView *>(&widget))
        return textsOf(*header);
    if (const auto *const table = qobject_cast<const QTableView *>(&widget))
        return textsOf(*table);
    if (const auto *const box = qobject_cast<const QComboBox *>(&widget))
        return textsOf(*box);
    if (const auto *const edit = qobject_cast<const QLineEdit *>(&widget))
        return {textOf(*edit)};
    if (const auto *const box = qobject_cast<const QAbstractSpinBox *>(&widget))
        return {textWithin(*box, box->text(), box->sizeHint())};
    if (const auto *const group = qobject_cast<const QGroupBox *>(&widget))
        return {textWithin(*group, group->title(), group->minimumSizeHint())};
    if (const auto *const menu = qobject_cast<const QMenuBar *>(&widget))
        return {textWithin(*menu, QStringLiteral("the menu bar"), menu->sizeHint())};
    return {};
}

/// Those of the window itself and of what is in it; other windows have rows of their own.
QList<const QWidget *> visibleWidgets(const QWidget &window)
{
    QList<const QWidget *> visible{&window};
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->window() == window.window())
            visible.append(widget);
    }
    return visible;
}

/// What the widgets around it leave of it.
QSize shownSize(const QWidget &widget)
{
    QRect shown = widget.rect();
    for (const QWidget *inner = &widget; !inner->isWindow(); inner = inner->parentWidget())
        shown = shown.translated(inner->pos()) & inner->parentWidget()->rect();
    return shown.size();
}

bool containsAny(const QString &text, const QStringList &parts)
{
    return std::any_of(parts.begin(), parts.end(),
                       [&text](const QString &part) { return text.contains(part); });
}

QString lengths(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/// The keys in the menu bar are the window's, those of its menus their own.
QStringList textsWithKeys(const QWidget &widget)
{
    QStringList texts;
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    if (label && label->buddy())
        texts.append(label->text());
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        texts.append(button->text());
    if (const auto *const group = qobject_cast<const QGroupBox *>(&widget))
        texts.append(group->title());
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    if (qobject_cast<const QMenuBar *>(&widget) || qobject_cast<const QMenu *>(&widget)) {
        for (const QAction *const action : widget.actions())
            texts.append(action->text());
    }
    return texts;
}

} // namespace

QStringList cutTexts(const QWidget &window, const QStringList &userData)
{
    QStringList cut;
    for (const QWidget *const widget : visibleWidgets(window)) {
        const QSize shownPart = shownSize(*widget);
        for (const Shown &shown : textsOf(*widget)) {
            const Shown seen{shown.text, shown.needed, shown.room.boundedTo(shownPart)};
            if (!seen.text.isEmpty() && seen.isCut() && !containsAny(seen.text, userData))
                cut.append(QStringLiteral("%1 \"%2\" takes %3 and has %4")
                               .arg(widget->metaObject()->className(), seen.text,
                                    lengths(seen.needed), lengths(seen.room)));
        }
    }
    return cut;
}

QStringList sharedKeys(const QWidget &window)
{
    QMap<QString, QStringList> textsByKey;
    for (const QWidget *const widget : visibleWidgets(window)) {
        for (const QString &text : textsWithKeys(*widget)) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (!key.isEmpty())
                textsByKey[key].append(text);
        }
    }
    QStringList shared;
    for (auto key = textsByKey.cbegin(); key != textsByKey.cend(); ++key) {
        if (key.value().size() > 1)
            shared.append(key.key() + QStringLiteral(": ") + key.value().join(", "));
    }
    return shared;
}
