#include "PipelineTests.h"

#include "TestMain.h"

namespace {

int runAll(int argc, char *argv[])
{
    const Zandrove::TestMain::OwnHome home;
    const QCoreApplication app(argc, argv);
    return Zandrove::TestMain::runTests(makePipelineRulesTest, makeFileSenderTest, makeFileReceiverTest,
                                        makeMigrationManagerTest, makeRunLanesTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
