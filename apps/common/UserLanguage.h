// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

namespace common
{

/// What the user wants to read, best first: the language that is chosen in the settings of
/// refdialer, then the system's, each as "pt_PT" or "pt-PT".
QStringList wantedLanguages();

/// The one of the `available` languages that fits best to the first of the `wanted` ones that
/// any fits to: that very one, else one of the same language and script. English if none does.
QString nearestLanguage(const QStringList &wanted, const QStringList &available);

/// While it lives, the program's texts are in the user's language, as far as a file LL.qm
/// of the folder has them; in English else. For programs that have no other language, on
/// the application's thread.
class UserLanguage
{
public:
    explicit UserLanguage(const QString &folder);
    ~UserLanguage();
    UserLanguage(const UserLanguage &) = delete;
    UserLanguage &operator=(const UserLanguage &) = delete;

private:
    QTranslator m_texts;
};

} // namespace common
