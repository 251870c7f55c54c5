// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

namespace refdialer
{

/// One window for each history on a session bus: who starts later asks the one that
/// has the history's name there to come forward. Without a bus everybody is alone.
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;
    ~SingleInstance() override;

    /// The name on the bus for the store at this path, by whichever of its names: the
    /// application's own for the store in the home folder.
    static QString nameFor(const QString &storeFile);

    enum class Outcome {
        First,       ///< or there is no bus
        OtherRaised, ///< the other window has been asked for, and is there
        OtherIsBusy, ///< it has been asked for, and comes as soon as it can
    };
    /// Takes the store's name until this object ends, or asks its owner. Waits until
    /// that one has answered, for seconds at most. Once only.
    Outcome claim(const QString &storeFile);

public slots:
    /// Called over the bus, as the rules of desktop entries describe it.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);

signals:
    void activated();

private:
    QString m_name; ///< on the bus; empty while it is not this one's
};

} // namespace refdialer
