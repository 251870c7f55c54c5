// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonValue>

namespace refhost
{

/// An array's or object's text, indented, ended by a line feed. Its numbers are
/// integers and written exactly, which not every version of the toolkit does.
QByteArray jsonText(const QJsonValue &value);

} // namespace refhost
