#include "TestMain.h"

namespace {

int runAll(int argc, char *argv[])
{
    const Zandrove::TestMain::OwnHome home;
    const QCoreApplication app(argc, argv);
    return Zandrove::TestMain::runTests();
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
