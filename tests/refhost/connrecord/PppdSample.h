// SPDX-License-Identifier: MIT
#pragma once

#include "LineReader.h"
#include "PppdLog.h"

#include <QBuffer>
#include <QByteArray>

/// The log that these lines make.
inline refhost::PppdLog pppdLogOf(QByteArray contents)
{
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    refhost::LineReader lines(buffer, refhost::longestLogLine);
    refhost::PppdLog log = refhost::readPppdLog(lines, [](std::int64_t) {});
    refhost::dropCopies(log.events);
    return log;
}
