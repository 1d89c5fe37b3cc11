#include "cli/Output.h"
#include "support/PrintableText.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

QByteArray questionAbout(const QString &name)
{
    const QString question =
        QCoreApplication::translate("Zandrove::Cli::Output", "Allow %1 to connect? [y/N] ");
    return printable(question.arg(name)).toUtf8();
}

QByteArray errorLine(const QString &message)
{
    return (u"zandrove-cli: "_s + printable(message) + u'\n').toUtf8();
}

} // namespace Zandrove::Cli
