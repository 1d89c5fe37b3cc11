#include "SimulatedPc.h"

#include "TestFiles.h"

#include "platform/ExternalProgram.h"
#include "platform/Registry.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

const QString OwnKey = u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s;

[[noreturn]] void refuse(const QString &what)
{
    qFatal("%s on a PC that ZANDROVE_SCRATCH_PC does not give away for tests.", qPrintable(what));
}

bool isScratchPc()
{
    return qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC");
}

void reg(const QStringList &arguments)
{
    const auto result = Platform::runProgram(u"reg.exe"_s, arguments);
    if (!result.finished || result.exitCode != 0)
        qFatal("reg.exe %s ended with %d: %s", qPrintable(arguments.join(u' ')), result.exitCode,
               (result.standardOutput + result.standardError).constData());
}

bool isOwnKey(const QString &key)
{
    return (key + u'\\').startsWith(OwnKey + u'\\', Qt::CaseInsensitive);
}

QStringList keysIn(const QString &registryText)
{
    static const QRegularExpression KeyLine(u"^\\[-?(.+)\\]\\s*$"_s, QRegularExpression::MultilineOption);
    QStringList keys;
    for (auto match = KeyLine.globalMatch(registryText); match.hasNext();)
        keys.append(match.next().captured(1));
    return keys;
}

/// `path`, or the highest folder above it that is missing too.
template <typename Exists>
QString topmostMissing(QString path, QChar separator, Exists exists)
{
    for (QString above = path.section(separator, 0, -2); !above.isEmpty() && !exists(above);
         above = above.section(separator, 0, -2))
        path = above;
    return path;
}

bool keyExists(const QString &key)
{
    return Platform::RegistryKey(key).exists();
}

} // namespace

/// What this PC gets back in the end.
class SimulatedPc::State
{
public:
    QStringList addedFiles; ///< a file, or the highest folder that was made for one
    QStringList addedKeys;
    QStringList changedKeys; ///< saved in the file of that index
};

SimulatedPc::SimulatedPc(const PathRule &isUnsuitable)
    : m_folder(makeScratchFolder(isUnsuitable))
    , m_state(std::make_unique<State>())
{
    m_state->addedKeys.append(OwnKey);
}

SimulatedPc::~SimulatedPc()
{
    for (const QString &key : m_state->changedKeys + m_state->addedKeys) {
        if (keyExists(key))
            reg({u"delete"_s, key, u"/f"_s});
    }
    for (qsizetype i = 0; i < m_state->changedKeys.size(); ++i)
        reg({u"import"_s, path(u"saved%1.reg"_s.arg(i))});
    for (const QString &added : std::as_const(m_state->addedFiles)) {
        if (!QFile::remove(added))
            QDir(added).removeRecursively();
    }
}

bool SimulatedPc::isMadeUp()
{
    return false;
}

QString SimulatedPc::homePath(const QString &place) const
{
    return place.isEmpty() ? QDir::homePath() : QDir::homePath() + u'/' + place;
}

QString SimulatedPc::writeFile(const QString &place, const QByteArray &content)
{
    const QString target = path(place);
    if (QFileInfo(place).isAbsolute()) {
        if (!isScratchPc() || QFileInfo::exists(target))
            refuse(target);
        m_state->addedFiles.append(
            topmostMissing(target, u'/', qOverload<const QString &>(&QFileInfo::exists)));
    }
    return Zandrove::writeFile(target, content);
}

void SimulatedPc::addRegistry(const QString &text)
{
    for (const QString &key : keysIn(text)) {
        if (isOwnKey(key))
            continue;
        if (!isScratchPc())
            refuse(key);
        if (!keyExists(key)) {
            m_state->addedKeys.append(topmostMissing(key, u'\\', keyExists));
        } else if (!m_state->changedKeys.contains(key)) {
            reg({u"export"_s, key, path(u"saved%1.reg"_s.arg(m_state->changedKeys.size())), u"/y"_s});
            m_state->changedKeys.append(key);
        }
    }
    QStringEncoder encode(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    const QString lines = QString(text).replace("\r\n"_L1, "\n"_L1).replace('\n'_L1, "\r\n"_L1);
    const QByteArray file = encode(u"Windows Registry Editor Version 5.00\r\n\r\n"_s + lines);
    reg({u"import"_s, writeFile(u"added.reg"_s, file)});
}

QString SimulatedPc::registryText(const QString &key) const
{
    const QString exported = path(u"exported.reg"_s);
    reg({u"export"_s, key, exported, u"/y"_s});
    return QStringDecoder(QStringConverter::Utf16LE)(contentOf(exported));
}

void SimulatedPc::removeRegistry()
{
    refuse(u"No registry"_s);
}

void SimulatedPc::replaceProgram(const QString &name, const QByteArray &)
{
    refuse(u"Another "_s + name);
}

void SimulatedPc::removeProgram(const QString &name)
{
    refuse(u"No "_s + name);
}

QStringList SimulatedPc::programCalls() const
{
    refuse(u"Asking for calls"_s);
}

} // namespace Zandrove
