// SPDX-License-Identifier: MIT
#include "refhost/libsdk/ListNumbering.h"

#include <QTest>

#include <algorithm>
#include <random>

using refhost::ListNumbering;

class ListNumberingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyPlaceMeansItselfAtFirst();
    void aPlaceThatIsGoneMeansTheNextOneThere();
    void nothingIsLeftBehindTheLastPlace();
    void anEmptyListHasNothing();
    void agreesWithALongWalk();
};

void ListNumberingTest::everyPlaceMeansItselfAtFirst()
{
    ListNumbering numbering;
    numbering.assign({70, 50, 60});
    QCOMPARE(numbering.size(), std::size_t(3));
    for (std::size_t place = 0; place < 3; ++place)
        QCOMPARE(numbering.firstFrom(place), place);
    QCOMPARE(numbering.keyAt(1), std::int64_t(50));
}

void ListNumberingTest::aPlaceThatIsGoneMeansTheNextOneThere()
{
    ListNumbering numbering;
    numbering.assign({1, 2, 3, 4});
    numbering.markGone(1);
    numbering.markGone(2);
    QCOMPARE(numbering.firstFrom(0), std::size_t(0));
    QCOMPARE(numbering.firstFrom(1), std::size_t(3));
    QCOMPARE(numbering.firstFrom(2), std::size_t(3));
}

void ListNumberingTest::nothingIsLeftBehindTheLastPlace()
{
    ListNumbering numbering;
    numbering.assign({1, 2});
    numbering.markGone(1);
    QCOMPARE(numbering.firstFrom(1), numbering.size());
    QCOMPARE(numbering.firstFrom(numbering.size()), numbering.size());
}

void ListNumberingTest::anEmptyListHasNothing()
{
    ListNumbering numbering;
    numbering.assign({});
    QCOMPARE(numbering.firstFrom(0), std::size_t(0));
    QCOMPARE(numbering.size(), std::size_t(0));
}

void ListNumberingTest::agreesWithALongWalk()
{
    constexpr std::size_t size = 200;
    ListNumbering numbering;
    numbering.assign(std::vector<std::int64_t>(size));
    std::vector<bool> isThere(size, true);
    std::mt19937 random(20240229);
    for (std::size_t left = size; left > 0; --left) {
        const std::size_t place = random() % size;
        const auto found =
            std::find(isThere.begin() + static_cast<std::ptrdiff_t>(place), isThere.end(), true);
        const auto expected = static_cast<std::size_t>(found - isThere.begin());
        QCOMPARE(numbering.firstFrom(place), expected);
        if (expected == size)
            continue;
        isThere[expected] = false;
        numbering.markGone(expected);
    }
}

QTEST_GUILESS_MAIN(ListNumberingTest)

#include "tst_listnumbering.moc"
