// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#include <QImage>
#include <QPainter>
#include <QTest>

namespace
{

/// Lets a test call what only views may.
class Delegate : public GridDelegateLayout
{
public:
    using GridDelegateLayout::drawFocus;
};

} // namespace

/// The delegate of the table, which has no focus rectangle.
class tst_GridDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsAWhiteHairlineForAFocusedCell();
    void leavesThePenOfOtherCells();
    void drawsNothing_data();
    void drawsNothing();
};

void tst_GridDelegate::setsAWhiteHairlineForAFocusedCell()
{
    QImage image(20, 14, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3));
    QStyleOptionViewItem option;
    option.state = QStyle::State_HasFocus | QStyle::State_Enabled;
    Delegate().drawFocus(&painter, option, image.rect());
    QCOMPARE(painter.pen(), QPen(Qt::white, 0));
}

void tst_GridDelegate::leavesThePenOfOtherCells()
{
    QImage image(20, 14, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3));
    QStyleOptionViewItem option;
    option.state = QStyle::State_Enabled | QStyle::State_Selected;
    Delegate().drawFocus(&painter, option, image.rect());
    QCOMPARE(painter.pen(), QPen(Qt::red, 3));
}

void tst_GridDelegate::drawsNothing_data()
{
    QTest::addColumn<bool>("isFocused");
    QTest::newRow("focused") << true;
    QTest::newRow("not focused") << false;
}

void tst_GridDelegate::drawsNothing()
{
    QFETCH(bool, isFocused);
    QImage image(20, 14, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const QImage before = image.copy();
    QStyleOptionViewItem option;
    option.state = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
    option.state.setFlag(QStyle::State_HasFocus, isFocused);
    {
        QPainter painter(&image);
        Delegate().drawFocus(&painter, option, image.rect());
    }
    QCOMPARE(image, before);
}

QTEST_MAIN(tst_GridDelegate)
#include "tst_griddelegate.moc"
