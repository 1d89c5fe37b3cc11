#include "../PipelineTests.h"

#include "pipeline/FileReceiverWorker.h"

#include <sys/resource.h>

#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace Zandrove;

/// A disk that takes no more, as a limit that this system can set for a process makes one.
class FullDiskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileWithoutRoomCostsThatFile()
    {
        const QTemporaryDir root;
        const auto names = [&root] { // hidden ones included
            return QDir(root.filePath(u"Photos"_s)).entryList(QDir::Files | QDir::Hidden | QDir::System);
        };
        FileReceiverWorker receiver;
        receiver.setDestinationRoot(root.path());
        receiver.startReceiving();
        QSignalSpy failed(&receiver, &FileReceiverWorker::fileFailed);
        QList<ItemOutcome> outcomes;
        connect(&receiver, &FileReceiverWorker::taskSettled, this,
                [&outcomes](const ReceivedFile &file) { outcomes.append(file.outcome); });

        const QByteArray big = someBytes(4194304);
        struct rlimit before = {};
        ::getrlimit(RLIMIT_FSIZE, &before);
        const struct rlimit small = {1000000, before.rlim_max};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &small);
        receiver.onFileHeader(u"Photos/full"_s, 2 * big.size(), 0, 1);
        receiver.onFileData(chunkPayload(1, big));
        const QStringList left = names();
        receiver.onFileData(chunkPayload(1, big));
        receiver.onFileEnd(u"Photos/full"_s, 1, 1);
        receiver.onFileHeader(u"Photos/good"_s, 3, 0, 2);
        receiver.onFileData(chunkPayload(2, "abc"));
        receiver.onFileEnd(u"Photos/good"_s, checksumOf("abc"), 2);
        ::setrlimit(RLIMIT_FSIZE, &before);

        QCOMPARE(left, QStringList()); // gone at once
        QCOMPARE(failed.first().at(1).toString(), u"Write error: "_s + qt_error_string(EFBIG));
        QCOMPARE(outcomes, (QList{ItemOutcome::Failed, ItemOutcome::Arrived}));
        QCOMPARE(names(), (QStringList{u"good"_s}));
        QSignalSpy completed(&receiver, &FileReceiverWorker::allCompleted);
        receiver.onTransferComplete();
        QCOMPARE(completed.takeFirst(), (QVariantList{1, 1, 0, 3ll}));
    }
};

ZANDROVE_TEST(FullDiskTest)
#include "FullDiskTest.moc"
