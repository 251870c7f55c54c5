// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"
#include "formats/Formats.h"

#include <QRegularExpression>
#include <QTest>

/// The manual and the help list the formats of the table, these and no others.
class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void listsTheFormats();
    void showsTheChoiceOfFormats();
};

namespace
{

using Formats = QList<QPair<QString, QString>>;

/// Names, and what they are as a sentence.
template <typename Table>
Formats tableOf(const Table &table)
{
    Formats formats;
    for (const auto &format : table) {
        QString help = QString::fromUtf8(format.help) + '.';
        help[0] = help[0].toUpper();
        formats.append({format.name, help});
    }
    return formats;
}

/// The part of the manual that begins with this line, up to the next such part.
QString manualPart(const QString &macro, const QString &name)
{
    const QString manual = QString::fromUtf8(readFile(MANUAL_FILE));
    const auto start = manual.indexOf('\n' + macro + ' ' + name + '\n');
    return manual.mid(start, manual.indexOf(QRegularExpression("\n\\.S[hs] "), start + 1) - start);
}

/// The sentence that the lines begin with, without their macros.
QString firstSentence(const QString &lines)
{
    QString text = lines;
    text.replace(QRegularExpression("\n(\\.[A-Z][a-z] )?"), " ").replace(" .", ".");
    return text.left(text.indexOf('.') + 1).trimmed();
}

Formats listedFormats(const QString &command)
{
    const QRegularExpression item("\\n\\.It Fl -format Cm (\\w+)((\\n(?!\\.It|\\.El).*)*)");
    Formats formats;
    auto items = item.globalMatch(manualPart(".Ss", command));
    while (items.hasNext()) {
        const auto match = items.next();
        formats.append({match.captured(1), firstSentence(match.captured(2))});
    }
    return formats;
}

QStringList namesOf(const Formats &formats)
{
    QStringList names;
    for (const auto &format : formats)
        names << format.first;
    return names;
}

} // namespace

void ManualTest::listsTheFormats()
{
    QCOMPARE(listedFormats("import"), tableOf(formats::importFormats));
    QCOMPARE(listedFormats("export"), tableOf(formats::exportFormats));
}

void ManualTest::showsTheChoiceOfFormats()
{
    const QStringList names = namesOf(tableOf(formats::importFormats));
    QVERIFY(manualPart(".Sh", "SYNOPSIS")
                .contains(".Cm import\n.Fl -format Cm " + names.join(" Ns | Ns Cm ") + '\n'));
    const QByteArray help = connrecord({"import", "--help"}).output;
    QVERIFY2(help.contains("--format " + names.join('|').toUtf8() + ' '), help);
}

QTEST_GUILESS_MAIN(ManualTest)

#include "tst_manual.moc"
