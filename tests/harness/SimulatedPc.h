#pragma once

#include "ScopedEnvironment.h"

#include "inventory/PathExclusion.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace Zandrove {

/// A PC of its own, for as long as the object lives: a scratch folder with a C drive and the home of the user
/// "alice" on it, a registry, stand-ins for the programs of Windows, and this process's environment and
/// current folder set so that all of them are found. One at a time; make it before any thread, and behind the
/// application object.
///
///   C:/Users/alice              HOME, with Documents, Pictures, Music, Videos, Downloads, Desktop
///   C:/Users/alice/AppData      Local and Roaming, the Start Menu below Roaming
///   C:/ProgramData, C:/Program Files, C:/Program Files (x86), C:/Windows
///
/// On Windows it is the PC at hand, with its user, drive and registry, which get back the state that they
/// had. What a test does to a file or a key that it hasn't added through this object stays done. So only on a
/// PC that exists for tests alone, which the environment variable ZANDROVE_SCRATCH_PC tells, may it touch
/// more than its scratch folder and HKEY_CURRENT_USER\Software\ZandroveTest.
class SimulatedPc final
{
public:
    /// Whether a path lies where a test's files must not lie.
    using PathRule = std::function<bool(const QString &path)>;

    /// The PC lies below the build folder, or, where `isUnsuitable` holds for files there, in another
    /// writable place. By default a place is unsuitable whose files are never moved.
    explicit SimulatedPc(const PathRule &isUnsuitable = isExcludedFile);
    ~SimulatedPc();
    SimulatedPc(const SimulatedPc &) = delete;
    SimulatedPc &operator=(const SimulatedPc &) = delete;

    /// The absolute path of what lies at `place`, such as "C:/ProgramData/x", on this PC.
    [[nodiscard]] QString path(const QString &place) const;
    [[nodiscard]] QString homePath(const QString &place = QString()) const;

    /// Writes a file with its folders. Returns its absolute path.
    QString writeFile(const QString &place, const QByteArray &content);

    /// Adds keys and values to the registry, in the text form of a .reg file without its header line.
    void addRegistry(const QString &text);
    /// The registry at `key` and below, in that text form with the header line; on a made-up PC everything
    /// for an empty key.
    [[nodiscard]] QString registryText(const QString &key = QString()) const;

    /// Whether the programs are stand-ins and the registry is a file; what follows is of use only then.
    [[nodiscard]] static bool isMadeUp();

    /// Leaves this PC without a registry.
    void removeRegistry();

    /// Puts a shell script in the place of a program, or takes the program away.
    void replaceProgram(const QString &name, const QByteArray &script);
    void removeProgram(const QString &name);
    /// What the stand-ins were called with so far, a line a call: "reg|export|HKCU\Software|C:/x.reg|/y".
    [[nodiscard]] QStringList programCalls() const;

    /// A variable of this PC's environment; its old value comes back with all the others.
    ScopedEnvironment &environment() { return m_environment; }

private:
    class State;

    [[nodiscard]] static std::unique_ptr<QTemporaryDir> makeScratchFolder(const PathRule &isUnsuitable);

    ScopedEnvironment m_environment;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<State> m_state; ///< what the system gets back in the end
};

} // namespace Zandrove
