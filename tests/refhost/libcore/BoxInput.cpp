// SPDX-License-Identifier: MIT
#include "BoxInput.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QWindow>

QMessageBox *openBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QAbstractButton *buttonNamed(const QMessageBox &box, const QString &text)
{
    for (QAbstractButton *const button : box.buttons()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void clickOn(QMessageBox &box, const QString &button)
{
    QAbstractButton *const named = buttonNamed(box, button);
    QVERIFY2(named, qPrintable("no button " + button));
    QTest::mouseClick(named, Qt::LeftButton);
}

void pressKeys(QMessageBox &box, const QList<Qt::Key> &keys)
{
    QVERIFY(QTest::qWaitForWindowActive(&box));
    const QPointer<QWindow> window = box.windowHandle();
    for (const Qt::Key key : keys)
        QTest::keyClick(window, key);
}
