#include "SimulatedPc.h"
#include "TestFiles.h"

#include "platform/generic/RegistryFile.h"
#include "platform/generic/RegistryText.h"

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

const QString Home = u"C:/Users/alice"_s;
const QStringList StandardFolders = {u"Documents"_s, u"Pictures"_s,  u"Music"_s,
                                     u"Videos"_s,    u"Downloads"_s, u"Desktop"_s};

void makeFolders(const SimulatedPc &pc)
{
    QStringList folders = {u"bin"_s,
                           u"Scratch"_s,
                           Home + u"/.config"_s,
                           Home + u"/AppData/Local"_s,
                           Home + u"/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"_s,
                           u"C:/ProgramData"_s,
                           u"C:/Program Files"_s,
                           u"C:/Program Files (x86)"_s,
                           u"C:/Windows"_s};
    for (const QString &name : StandardFolders)
        folders.append(Home + u'/' + name);
    for (const QString &folder : std::as_const(folders))
        QDir().mkpath(pc.path(folder));
}

void setEnvironment(SimulatedPc &pc)
{
    const auto set = [&pc](const char *name, const QString &place) {
        pc.environment().set(name, QFile::encodeName(pc.path(place)));
    };
    set("HOME", Home);
    set("XDG_CONFIG_HOME", Home + u"/.config"_s);
    set("XDG_DATA_HOME", Home + u"/.local/share"_s);
    set("XDG_CACHE_HOME", Home + u"/.cache"_s);
    set("LOCALAPPDATA", Home + u"/AppData/Local"_s);
    set("APPDATA", Home + u"/AppData/Roaming"_s);
    set("ProgramData", u"C:/ProgramData"_s);
    set("ProgramFiles", u"C:/Program Files"_s);
    set("ProgramFiles(x86)", u"C:/Program Files (x86)"_s);
    set("SystemRoot", u"C:/Windows"_s);
    set("TMPDIR", u"Scratch"_s);
    set("ZANDROVE_REGISTRY", u"registry.reg"_s);
    set("ZANDROVE_STANDIN_CALLS", u"calls"_s);
    pc.environment().set("USER", "alice");
    pc.environment().set("SystemDrive", "C:");
    pc.environment().set("PATH", QFile::encodeName(pc.path(u"bin"_s)) + ':' + qgetenv("PATH"));

    QByteArray folders;
    for (const QString &name : StandardFolders) {
        const QString key = name == "Downloads"_L1 ? u"DOWNLOAD"_s : name.toUpper();
        folders += "XDG_" + key.toLatin1() + "_DIR=\"$HOME/" + name.toLatin1() + "\"\n";
    }
    pc.writeFile(pc.homePath(u".config/user-dirs.dirs"_s), folders);
}

void installPrograms(const SimulatedPc &pc)
{
    for (const QString &name : {u"reg"_s, u"reg.exe"_s, u"powercfg"_s, u"netsh"_s})
        QFile::link(QStringLiteral(ZANDROVE_TEST_STANDINS), pc.path(u"bin/"_s + name));
}

} // namespace

class SimulatedPc::State
{
public:
    QString previousFolder = QDir::currentPath();
};

SimulatedPc::SimulatedPc(const PathRule &isUnsuitable)
    : m_folder(makeScratchFolder(isUnsuitable))
    , m_state(std::make_unique<State>())
{
    QDir::setCurrent(m_folder->path());
    makeFolders(*this);
    setEnvironment(*this);
    installPrograms(*this);
    writeFile(u"calls"_s, {});
    writeFile(u"registry.reg"_s, Platform::encodeRegistryFile(Platform::registryText({})));
}

SimulatedPc::~SimulatedPc()
{
    QDir::setCurrent(m_state->previousFolder);
}

bool SimulatedPc::isMadeUp()
{
    return true;
}

QString SimulatedPc::homePath(const QString &place) const
{
    return path(place.isEmpty() ? Home : Home + u'/' + place);
}

QString SimulatedPc::writeFile(const QString &place, const QByteArray &content)
{
    return Zandrove::writeFile(path(place), content);
}

void SimulatedPc::addRegistry(const QString &text)
{
    const QString whole = u"Windows Registry Editor Version 5.00\n\n"_s + text;
    const bool added = Platform::changeRegistryFile(
        [&whole](Platform::RegistryNode &registry) { return Platform::mergeRegistryText(registry, whole); });
    if (!added)
        qFatal("The simulated PC's registry can't be changed.");
}

QString SimulatedPc::registryText(const QString &key) const
{
    return Platform::registryText(*Platform::readRegistryFile(), key);
}

void SimulatedPc::removeRegistry()
{
    m_environment.unset("ZANDROVE_REGISTRY");
}

void SimulatedPc::replaceProgram(const QString &name, const QByteArray &script)
{
    removeProgram(name);
    const QString program = writeFile(u"bin/"_s + name, "#!/bin/sh\n" + script + '\n');
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void SimulatedPc::removeProgram(const QString &name)
{
    QFile::remove(path(u"bin/"_s + name));
}

QStringList SimulatedPc::programCalls() const
{
    return QString::fromUtf8(contentOf(path(u"calls"_s))).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace Zandrove
