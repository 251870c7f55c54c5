// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Collects the lines of the default debug output while it lives. Times of day
/// become "<now>" (with milliseconds) and "<time>" (without).
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    /// The lines so far, which are then forgotten.
    QStringList take();
    /// The same, only those in which this word stands.
    QStringList takeAbout(const QString &word);
};
