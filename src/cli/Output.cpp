#include "cli/Output.h"
#include "support/PrintableText.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

QByteArray questionAbout(const ConnectionQuestion &question)
{
    const QString text =
        QCoreApplication::translate("Zandrove::Cli::Output", "Allow %1 (%2) to connect? [y/N] ");
    return printable(text.arg(question.name, question.ip)).toUtf8();
}

QByteArray errorLine(const QString &message)
{
    return (u"zandrove-cli: "_s + printable(message) + u'\n').toUtf8();
}

} // namespace Zandrove::Cli
