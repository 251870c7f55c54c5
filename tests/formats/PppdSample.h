// SPDX-License-Identifier: MIT
#pragma once

#include "formats/LineReader.h"
#include "formats/PppdLog.h"

#include <QBuffer>
#include <QByteArray>

/// The log that these lines make.
inline formats::PppdLog pppdLogOf(QByteArray contents)
{
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    formats::LineReader lines(buffer, formats::longestLogLine);
    formats::PppdLog log = formats::readPppdLog(lines);
    formats::dropCopies(log.events);
    return log;
}
