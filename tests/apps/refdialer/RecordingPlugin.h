// SPDX-License-Identifier: MIT
#pragma once

#include "INotify.h"
#include "IUIPlugin.h"
#include "refhost/libcore/Host.h"

#include <QDateTime>
#include <QPointer>
#include <QTableWidget>

/// A plug-in that shows a table of three rows and notes how it is driven.
class RecordingPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_INTERFACES(IUIPlugin : IBasePlugin INotify)

public:
    explicit RecordingPlugin(QStringList &calls)
        : m_calls(calls)
    {
    }
    ~RecordingPlugin() override { m_calls.append("deleted"); }

    bool Init() override { return note("Init"); }
    bool ShowWindow(QWidget *parent, QRect &rect) override
    {
        m_area = parent;
        if (!parent->findChild<QTableWidget *>())
            addTable(parent);
        return note("ShowWindow " + textOf(rect));
    }
    int DoModal() override { return note("DoModal"); }
    void Hide() override { note("Hide"); }
    void FitSize(QRect &rect) override { note("FitSize " + textOf(rect)); }
    bool IsReady() override { return false; }
    bool ChangeLang(const QString &language) override
    {
        note("ChangeLang " + language + ", texts in " + refhost::language());
        return m_acceptsLanguages;
    }
    unsigned int Notify(unsigned int event, unsigned int first, unsigned int second) override
    {
        note(QString("Notify %1, %2, %3").arg(event).arg(first).arg(second));
        return 0;
    }
    void OnDestroy() override { note(m_area ? "OnDestroy" : "OnDestroy without the area"); }

    void UnSDKRegisterEvent() override { note("UnSDKRegisterEvent"); }
    void Release() override { note("Release"); }
    int GetLastError() override { return 0; }
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return "the class id"; }
    int GetVersion() override { return 257; }
    QString GetPluginName() override { return "RecordingPlugin"; }
    bool IsAllowRelease() override { return false; }
    int QueryInterface(int, QObject **) override { return 0; }

    void refuseLanguages() { m_acceptsLanguages = false; }
    QWidget *area() const { return m_area; }
    QTableWidget *table() const { return m_area->findChild<QTableWidget *>(); }

    static QString textOf(const QRect &rect)
    {
        return QString("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
    }

private:
    bool note(const QString &call)
    {
        m_calls.append(call);
        return true;
    }

    static void addTable(QWidget *parent)
    {
        auto *const table = new QTableWidget(3, 6, parent);
        const int days[] = {12, 30, 2};
        for (int row = 0; row < 3; ++row) {
            auto *const item = new QTableWidgetItem;
            item->setData(Qt::DisplayRole, QDateTime(QDate(2026, 10, days[row]), QTime(8, 0)));
            table->setItem(row, 1, item);
        }
    }

    QStringList &m_calls;
    QPointer<QWidget> m_area;
    bool m_acceptsLanguages = true;
};
