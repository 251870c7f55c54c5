// SPDX-License-Identifier: MIT
#include "DeletionTest.h"

#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

void DeletionTest::init()
{
    Host::instance().reset();
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
}

void DeletionTest::cleanup()
{
    m_plugin.reset();
}

void DeletionTest::start(int records)
{
    for (int i = 0; i < records; ++i)
        Host::instance().records.append(scripted::record(QString::number(i),
                                                         QByteArray::number(1600000000 + i * 60),
                                                         "1700000000", "60", "1", "2"));
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->show();
    Host::instance().calls.clear();
}

void DeletionTest::selectRows(const QList<int> &rows)
{
    QItemSelection selection;
    for (int row : rows)
        selection.select(m_plugin->table()->model()->index(row, 0),
                         m_plugin->table()->model()->index(row, 5));
    m_plugin->table()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void DeletionTest::trigger(const char *slot)
{
    QVERIFY(QMetaObject::invokeMethod(m_plugin->historyWindow(), slot));
}

QStringList DeletionTest::profiles() const
{
    QStringList result;
    for (int row = 0; row < m_plugin->table()->rowCount(); ++row)
        result.append(m_plugin->table()->item(row, 0)->text());
    return result;
}

QStringList DeletionTest::removals()
{
    return Host::instance().calls.filter("RemoveRecord");
}
