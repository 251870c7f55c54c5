// SPDX-License-Identifier: MIT
#include "Options.h"

#include "Failure.h"
#include "apps/common/ProblemText.h"
#include "recorder/InterfaceName.h"
#include "refhost/libcore/Host.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace refdialer
{

namespace
{

class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::CommandLine)

public:
    CommandLine();
    Options read(const QStringList &arguments);

private:
    QString information() const;
    QString value(const QCommandLineOption &option) const;
    QStringList values(const QCommandLineOption &option) const;
    static void check(const Options &options);
    static void checkInterfaceNames(const QStringList &names);
    [[noreturn]] static void refuse(const QString &problem);

    QCommandLineParser m_parser;
    const QCommandLineOption m_help{{QStringLiteral("h"), QStringLiteral("help")},
                                    tr("Show this help.")};
    const QCommandLineOption m_version{{QStringLiteral("v"), QStringLiteral("version")},
                                       tr("Show the version.")};
    const QCommandLineOption m_store{
        QStringLiteral("store"),
        tr("Use the history in FILE instead of your own, to show and to record."), tr("FILE")};
    const QCommandLineOption m_plugin{QStringLiteral("plugin"),
                                      tr("Load the history plug-in from FILE."), tr("FILE")};
    const QCommandLineOption m_language{
        QStringLiteral("lang"),
        tr("Speak this language for once: %1.")
            .arg(refhost::availableLanguages().join(QStringLiteral(", "))),
        QStringLiteral("LL")};
    const QCommandLineOption m_debug{QStringLiteral("debug"),
                                     tr("Write the debug log to standard error.")};
    const QCommandLineOption m_demo{
        QStringLiteral("demo"),
        tr("Show a temporary copy of a sample history; nothing of yours is touched.")};
    const QCommandLineOption m_interface{
        QStringLiteral("interface"),
        tr("Record the connections of the network interface NAME (or alternative name) too, not "
           "only of mobile-broadband ones; may be given several times."),
        tr("NAME")};
    const QCommandLineOption m_profile{
        QStringLiteral("profile"),
        tr("Record connections under the profile (APN) NAME, not under their interface's name."),
        tr("NAME")};
    const QCommandLineOption m_noDialupService{
        QStringLiteral("no-dialup-service"),
        tr("Leave the dial-up service out, without which the history does not react to "
           "connections.")};
    const QCommandLineOption m_picture{
        QStringLiteral("screenshot"),
        tr("Draw the window to the PNG picture FILE without a display and exit."), tr("FILE")};
};

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(tr("Shows the history of mobile-broadband connections."));
    m_parser.addOptions({m_help, m_version, m_store, m_plugin, m_interface, m_profile,
                         m_noDialupService, m_language, m_debug, m_demo, m_picture});
}

Options CommandLine::read(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        refuse(m_parser.errorText());
    Options options;
    options.information = information();
    if (!options.information.isEmpty())
        return options;
    if (!m_parser.positionalArguments().isEmpty())
        refuse(tr("\"%1\" is not an option.").arg(m_parser.positionalArguments().first()));
    options.storeFile = value(m_store);
    options.pluginFile = value(m_plugin);
    options.language = value(m_language);
    options.pictureFile = value(m_picture);
    options.interfaceNames = values(m_interface);
    options.profile = value(m_profile);
    options.hasDialupService = !m_parser.isSet(m_noDialupService);
    options.isDebug = m_parser.isSet(m_debug);
    options.isDemo = m_parser.isSet(m_demo);
    check(options);
    checkInterfaceNames(options.interfaceNames);
    return options;
}

QString CommandLine::information() const
{
    if (m_parser.isSet(m_help))
        return m_parser.helpText();
    if (m_parser.isSet(m_version))
        return QCoreApplication::applicationName() + QLatin1Char(' ') +
               QCoreApplication::applicationVersion() + QLatin1Char('\n');
    return {};
}

QString CommandLine::value(const QCommandLineOption &option) const
{
    const QStringList texts = values(option);
    return texts.isEmpty() ? QString() : texts.last();
}

QStringList CommandLine::values(const QCommandLineOption &option) const
{
    QStringList texts = m_parser.values(option);
    if (texts.contains(QString()))
        refuse(tr("The option --%1 needs a value.").arg(option.names().first()));
    return texts;
}

void CommandLine::check(const Options &options)
{
    if (options.storeFile.contains(QChar::ReplacementCharacter))
        refuse(tr("The path \"%1\" of the history is not UTF-8; rename the file or folder whose "
                  "name is not, or name another file.")
                   .arg(options.storeFile));
    if (options.isDemo && !options.storeFile.isEmpty())
        refuse(tr("--demo and --store exclude each other: the first shows a sample history, the "
                  "second one of yours."));
    if (!options.language.isEmpty() && !refhost::availableLanguages().contains(options.language))
        refuse(
            tr("There are no texts in the language \"%1\"; there are: %2.")
                .arg(options.language, refhost::availableLanguages().join(QStringLiteral(", "))));
}

void CommandLine::checkInterfaceNames(const QStringList &names)
{
    for (const QString &name : names) {
        if (!recorder::canNameAnInterface(name))
            refuse(common::impossibleInterfaceText(name));
    }
}

void CommandLine::refuse(const QString &problem)
{
    throw Failure{ExitCode::WrongUsage,
                  problem + QLatin1Char(' ') + tr("\"refdialer --help\" shows the options.")};
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    return CommandLine().read(arguments);
}

} // namespace refdialer
