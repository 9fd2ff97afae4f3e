#pragma once

#include <QHash>
#include <QStringList>

namespace devhost
{

/// The options of the program as its usage text lists them, and what may stand behind each.
///
/// The text is options.txt. scripts/check-options.sh reads it by the same rules, so that a wrong option is
/// refused in the same words before anything is built. A line "  --name VALUE  meaning" is an option; VALUE
/// is left out where none is wanted, stands in brackets where it may be left out, and else says what is
/// wanted: "a|b" one of these, "800x600..7680x4320" a size within these, FILE a file that can be read, what
/// has a colon a text with one. Lines that begin with a digit list the choices of the option above.
class Usage
{
public:
    Usage();

    /// @return the text, for --help.
    const QString& text() const { return m_text; }
    /// @param arguments without the program's name.
    /// @param error receives one sentence for the first argument that is wrong; else it stays empty.
    /// @return the values by option, "--theme"; empty ones where none was given. Reading ends at --help.
    QHash<QString, QString> read(const QStringList& arguments, QString* error) const;

private:
    struct Option {
        QString value;
        QStringList choices;
    };

    void readLine(const QString& line, QString* option);
    /// @return what is wrong with the option as it is given; empty when nothing is.
    QString problem(const QString& name, const QString& value, bool isGiven) const;
    static bool isWanted(const Option& option, const QString& value);
    static QString wantedText(const Option& option);

    QString m_text;
    QHash<QString, Option> m_options;
};

} // namespace devhost
