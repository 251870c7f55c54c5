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
Q_DECLARE_METATYPE(QStyle::State)

/// The delegate of the table, which has no focus rectangle.
class tst_GridDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsAWhiteHairlineWhereTheFocusIs_data();
    void setsAWhiteHairlineWhereTheFocusIs();
};

void tst_GridDelegate::setsAWhiteHairlineWhereTheFocusIs_data()
{
    using State = QStyle::State;
    QTest::addColumn<State>("state");
    QTest::addColumn<QPen>("pen");
    QTest::newRow("focused") << State(QStyle::State_Enabled | QStyle::State_HasFocus)
                             << QPen(Qt::white, 0);
    QTest::newRow("selected") << State(QStyle::State_Enabled | QStyle::State_Selected)
                              << QPen(Qt::red, 3);
}

void tst_GridDelegate::setsAWhiteHairlineWhereTheFocusIs()
{
    QFETCH(QStyle::State, state);
    QImage image(20, 14, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const QImage before = image.copy();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3));
    QStyleOptionViewItem option;
    option.state = state;
    Delegate().drawFocus(&painter, option, image.rect());
    QTEST(painter.pen(), "pen");
    painter.end();
    QCOMPARE(image, before); // nothing is drawn
}

QTEST_MAIN(tst_GridDelegate)
#include "tst_griddelegate.moc"
