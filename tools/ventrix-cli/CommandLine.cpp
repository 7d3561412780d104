#include "ventrix-cli/CommandLine.h"

#include <cstdio>

namespace ventrix::cli {

CommandLine::CommandLine(QString command, QString description, QString epilogue)
    : m_command(std::move(command))
    , m_epilogue(std::move(epilogue))
    , m_help(QStringList { QStringLiteral("h"), QStringLiteral("help") }, QStringLiteral("Shows this help."))
{
    m_parser.setApplicationDescription(description);
    m_parser.addOption(m_help);
}

std::optional<int> CommandLine::Parse(int argc, char** argv)
{
    // The parser takes the first entry as the program's name.
    QStringList arguments { QStringLiteral("ventrix-cli ") + m_command };
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const bool parsed = m_parser.parse(arguments);
    if (m_parser.isSet(m_help)) {
        const std::string help = HelpText();
        std::fwrite(help.data(), 1, help.size(), stdout);
        return 0;
    }
    if (!parsed)
        return Fail(m_parser.errorText().toStdString());
    return std::nullopt;
}

int CommandLine::Fail(const std::string& message) const
{
    std::fprintf(stderr, "ventrix-cli %s: %s\n", m_command.toLocal8Bit().constData(), message.c_str());
    return 2;
}

std::string CommandLine::HelpText() const
{
    // The parser's usage line names the executable's path: name the command instead.
    QString text = m_parser.helpText();
    const int lineEnd = text.indexOf(QLatin1Char('\n'));
    const QString usage = text.left(lineEnd);
    const int options = usage.indexOf(QStringLiteral(" [options]"));
    text = QStringLiteral("Usage: ventrix-cli ") + m_command + usage.mid(options) + text.mid(lineEnd);
    if (!m_epilogue.isEmpty())
        text += QLatin1Char('\n') + m_epilogue;
    return text.toStdString();
}

} // namespace ventrix::cli
