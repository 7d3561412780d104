#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace ventrix::cli {

// The options of one subcommand on QCommandLineParser: "--help" prints the usage line, the
// description, the options and an epilogue (examples, exit statuses) to standard output; a parse
// error or a failed check is one line "ventrix-cli COMMAND: ..." on standard error with exit
// status 2. Knows nothing about what the options mean.
class CommandLine {
public:
    CommandLine(QString command, QString description, QString epilogue = {});

    QCommandLineParser& Parser() { return m_parser; }
    void AddOption(const QCommandLineOption& option) { m_parser.addOption(option); }
    void AddPositional(const QString& name, const QString& description, const QString& syntax = {})
    {
        m_parser.addPositionalArgument(name, description, syntax);
    }

    // Parses the arguments that follow the command's name. Nothing when the command may go on;
    // otherwise the exit status: 0 after the help, 2 after an error.
    std::optional<int> Parse(int argc, char** argv);

    bool IsSet(const QString& name) const { return m_parser.isSet(name); }
    QString Value(const QString& name) const { return m_parser.value(name); }
    // The option's value when it was given.
    std::optional<std::string> Given(const QString& name) const
    {
        return IsSet(name) ? std::optional<std::string>(Value(name).toStdString()) : std::nullopt;
    }
    QStringList Positionals() const { return m_parser.positionalArguments(); }

    // The one-line error: "ventrix-cli COMMAND: message" on standard error; returns 2.
    int Fail(const std::string& message) const;
    std::string HelpText() const;

private:
    QString m_command;
    QString m_epilogue;
    QCommandLineParser m_parser;
    QCommandLineOption m_help;
};

} // namespace ventrix::cli
