// Makes and reads shell links where the tests' own language can't.

#include "platform/ShellLink.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Zandrove;

/// shell-link write LINK TARGET WORKING-FOLDER ARGUMENTS: makes a link.
/// shell-link read LINK: prints its target, working folder and arguments, a line each, and whether the target
/// is there.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    const QString file = words.value(1);
    if (words.value(0) == "write"_L1) {
        const Platform::ShellLink link{words.value(2), words.value(4), words.value(3), {}, 0, {}};
        return Platform::writeShellLink(file, link) ? 0 : 1;
    }
    const auto link = Platform::readShellLink(file);
    if (!link)
        return 1;
    const QString there = QFileInfo(link->path).isFile() ? u"there"_s : u"missing"_s;
    const QStringList lines = {link->path, link->workingDirectory, link->arguments, there};
    std::fputs(qPrintable(lines.join(u'\n') + u'\n'), stdout);
    return 0;
}
