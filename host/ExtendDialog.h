// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"

#include <QDialog>
#include <QString>

/// Variants of the dialog frame; the values are the host's.
enum enWidgetType { enWidgetTypeDialog = 1 };

/// The host's dialog frame (library libcore): its title bar and styling around
/// one content widget. It deliberately has no meta-object of its own, so a host
/// has four symbols to give: constructor, destructor and the two operations.
/// The plug-in allocates it, so a host's class has no data members of its own;
/// what it has to keep goes into child objects.
class HOST_API ExtendDialog : public QDialog
{
public:
    /// A frame over `parent`, which is its owner if it is not null.
    ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType type);
    ~ExtendDialog() override;

    /// Places the content in the frame, which becomes its parent.
    void AddMainWidget(QWidget *widget);
    /// Sets the title shown in the frame.
    void setWindowTitle(const QString &title);
};
