#pragma once

#include "core/common/RunSummary.h"

#include <QMetaType>
#include <QString>

namespace Zandrove {

/// What became of one file that the peer has sent.
struct ReceivedFile
{
    int taskId = -1;
    QString relativePath;                      ///< as the peer sent it
    QString destination;                       ///< absolute path on this PC, where it lies or should lie
    ItemOutcome outcome = ItemOutcome::Failed; ///< arrived, was there, was different or failed
    QString reason;                            ///< of a failure; translated
    qint64 bytes = 0;                          ///< as announced; of one that arrived, as received
    QString fullVolume; ///< the volume that had no room for it, "D:" or a mount point; else empty
};

} // namespace Zandrove

Q_DECLARE_METATYPE(Zandrove::ReceivedFile)
