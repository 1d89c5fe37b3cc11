#pragma once

#include "cli/Output.h"

#include <QJsonObject>

namespace Zandrove::Cli {

/// One JSON object a line on standard output, its first key "event". Errors and questions go to standard
/// error as well.
class JsonOutput final : public Output
{
public:
    explicit JsonOutput(Streams streams);

    void code(const QString &code) override;
    void peer(const PCInfo &pc) override;
    void peerLost(const QString &id, quint64 key) override;
    void found(const PCInfo &pc) override;
    void waiting(const QString &name) override;
    void request(const ConnectionQuestion &question, bool asks) override;
    void refused(const QString &name, const QString &why) override;
    void connected(const PCInfo &pc) override;
    void disconnected() override;
    void progress(const TransferProgress &progress) override;
    void file(const QString &name, FileStatus status, const QString &reason) override;
    void paused(Side by) override;
    void resumed(Side by) override;
    void cancelled(Side by) override;
    void installing(const QString &pcName, const QString &app, int percent) override;
    void report(const RunSummary &summary) override;
    void scanning(int percent, const QString &item, int apps) override;
    void inventory(const ScanResult &result) override;
    void finding(const Finding &finding) override;
    void diagnosed(int problems) override;
    void warning(const QString &message) override;
    void error(const QString &message) override;

private:
    void print(QLatin1StringView event, const QJsonObject &fields);

    Streams m_streams;
};

/// The fields of a report, and of a scan's result, by their names. Times are ISO 8601 with milliseconds,
/// empty where not set. A report names at most 1,000 files that failed, and as many that differ.
[[nodiscard]] QJsonObject toJson(const RunSummary &summary);
[[nodiscard]] QJsonObject toJson(const ScanResult &result);

} // namespace Zandrove::Cli
