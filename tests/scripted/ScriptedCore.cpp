// SPDX-License-Identifier: MIT
#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "ScriptedHost.h"
#include "Startup.h"

#include <QVBoxLayout>

using scripted::Host;

QString Change::tr(const QString &id, const QString &context)
{
    Host &host = Host::instance();
    host.translated.append(id + QLatin1Char('/') + context);
    return host.textPrefix + id;
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                             QString button1, QString button2, QString button3, bool flag1,
                             QFlags<Qt::WindowType> windowFlags, QDialog **dialog,
                             QString extraText, bool flag2)
{
    scripted::MessageBox box;
    box.icon = icon;
    box.parent = parent;
    box.title = title;
    box.text = text;
    box.buttons[0] = button1;
    box.buttons[1] = button2;
    box.buttons[2] = button3;
    box.flag1 = flag1;
    box.windowFlags = static_cast<int>(windowFlags);
    box.hasDialogPointer = dialog != nullptr;
    box.extraText = extraText;
    box.flag2 = flag2;
    Host &host = Host::instance();
    host.calls.append(QStringLiteral("ShowMessage(%1)").arg(text));
    host.messageBoxes.append(box);
    return host.answer ? host.answer(box) : 0;
}

QString CommonUtils::GetSettings(QString group, QString key)
{
    Host &host = Host::instance();
    host.calls.append(QStringLiteral("GetSettings(%1, %2)").arg(group, key));
    if (host.settingAsked)
        host.settingAsked();
    return host.settings.value({group, key});
}

QWidget *CommonUtils::GetMainWindow()
{
    Host::instance().calls.append(QStringLiteral("GetMainWindow()"));
    return Host::instance().mainWindow;
}

void CommonUtils::MoveCentre(QDialog *)
{
    Host::instance().calls.append(QStringLiteral("MoveCentre()"));
}

IPluginContainer *Startup::GetPluginContainer()
{
    Host::instance().calls.append(QStringLiteral("GetPluginContainer()"));
    return Host::instance().container;
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType type)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("ScriptedExtendDialog"));
    Host::instance().calls.append(QStringLiteral("ExtendDialog(0x%1, %2)")
                                      .arg(static_cast<unsigned>(flags), 8, 16, QLatin1Char('0'))
                                      .arg(static_cast<int>(type)));
}

ExtendDialog::~ExtendDialog()
{
    Host::instance().calls.append(QStringLiteral("~ExtendDialog()"));
}

void ExtendDialog::AddMainWidget(QWidget *widget)
{
    Host::instance().calls.append(QStringLiteral("AddMainWidget()"));
    if (!layout())
        (new QVBoxLayout(this))->setContentsMargins(0, 0, 0, 0);
    layout()->addWidget(widget);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    Host::instance().calls.append(QStringLiteral("setWindowTitle(%1)").arg(title));
    QDialog::setWindowTitle(title);
}
