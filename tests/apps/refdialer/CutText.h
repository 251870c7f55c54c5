// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

/// The texts of a shown window that have less room than they take, each with both, as it
/// is told in a failed test. Texts that contain one of `userData`, a path or a name that
/// nobody knows the length of, may be shortened.
QStringList cutTexts(const QWidget &window, const QStringList &userData = {});

/// The keys that more than one entry of the menu, or more than one control and menu of
/// the window, answer to with Alt.
QStringList sharedKeys(const QWidget &window);
