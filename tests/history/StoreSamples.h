// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <string>
#include <vector>

/// A connection with this profile that starts at `start` and ends at `end`.
history::Connection connection(const std::string &profile, std::int64_t start, std::int64_t end);

/// `count` connections called "0", "1" ... in the order of their start times.
std::vector<history::Connection> numberedConnections(int count);

/// A new store with these connections.
history::Store storeWith(const std::string &path,
                         const std::vector<history::Connection> &connections);

/// The same of several pages.
void makeStore(const std::string &path);

/// A new store without connections as the version had it that took so many steps of the schema.
void makeStoreOfVersion(const std::string &path, int version);

/// The profiles in the store's order, joined with blanks, or the error's name.
QString profilesIn(const std::string &path);

/// The result's value as text, or the name of its error's kind.
QString outcomeOf(const history::Result<std::int64_t> &result);
QString outcomeOf(const history::Result<std::size_t> &result);
QString outcomeOf(const history::Result<std::vector<history::Connection>> &result);
QString outcomeOf(const history::Result<history::Store> &result);

QByteArray contentsOf(const QString &path);
void writeFile(const QString &path, const QByteArray &contents);

/// Runs SQL on a database of its own making, as another program would.
void runSql(const std::string &path, const std::string &sql);

/// The version that the store's file says it has.
int versionOf(const std::string &path);
