#pragma once

namespace Zandrove {

/// Which lane of a sending run is where. The folders' files and those of the applications share one sender,
/// one list after the other; packing and the export of settings run beside it. Events come in, what is to be
/// done next goes out; no thread, no socket.
class SendPhases final
{
public:
    enum class Files { Sending, Through };             ///< of the folders
    enum class Packing { Running, Through };           ///< of the applications
    enum class AppFiles { Waiting, Sending, Through }; ///< of the applications, behind those of the folders
    enum class Settings { Exporting, Through };

    /// What follows from an event.
    struct Actions
    {
        bool sendAppFiles = false; ///< the sender gets its second list
        bool sendHeldEnds = false; ///< the ends of the applications leave: all of their files have
        bool complete = false;     ///< all lanes are through

        bool operator==(const Actions &) const = default;
    };

    /// A run begins; what has nothing to do is through.
    SendPhases(bool withApps, bool withSettings);

    /// A file of an application is announced. One that `isThere` is to follow those of the folders.
    void appFileAnnounced(bool isThere)
    {
        ++m_announcedAppFiles;
        m_appFiles += isThere ? 1 : 0;
    }
    [[nodiscard]] int announcedAppFiles() const { return m_announcedAppFiles; }
    /// The sender has the second list.
    [[nodiscard]] bool isSendingAppFiles() const { return m_appLane == AppFiles::Sending; }
    /// All applications are packed, or have failed.
    [[nodiscard]] Actions packed();
    /// The sender has worked off a list.
    [[nodiscard]] Actions listThrough();
    /// All settings are exported, or have failed.
    [[nodiscard]] Actions settingsThrough();

    /// The peer has been told that a run begins: what is said about it may leave from now on.
    void announce() { m_announced = true; }
    [[nodiscard]] bool isAnnounced() const { return m_announced; }

private:
    [[nodiscard]] bool areFilesThrough() const;
    void logFiles() const;
    [[nodiscard]] Actions checked(bool sendHeldEnds = false) const;

    bool m_withApps;
    Files m_files = Files::Sending;
    Packing m_packing;
    AppFiles m_appLane = AppFiles::Waiting;
    Settings m_settings;
    int m_announcedAppFiles = 0;
    int m_appFiles = 0; // of these
    bool m_announced = false;
};

} // namespace Zandrove
