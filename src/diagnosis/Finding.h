#pragma once

#include <QMetaType>
#include <QString>

namespace Zandrove {

/// How much a finding matters.
enum class Severity {
    Ok,      ///< looked at, and as it should be
    Hint,    ///< may matter, or could not be told; nothing was seen to stand in the way
    Problem, ///< was seen to stand in the way
};

/// One thing that was looked at, and what is to be said of it. The texts are translated, and claim nothing
/// that was not tested.
struct Finding
{
    QString id;      ///< which test it is, the same in every language; several findings may share one
    QString subject; ///< what it is about: an adapter's name, a port, a firewall, an address; may be empty
    Severity severity = Severity::Ok;
    QString sentence; ///< one plain sentence
    QString advice;   ///< one thing to do; empty where nothing is to be done
    QString command;  ///< the exact command for that, to be shown as it stands; empty without one
};

} // namespace Zandrove

Q_DECLARE_METATYPE(Zandrove::Finding)
