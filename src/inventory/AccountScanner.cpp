#include "inventory/AccountScanner.h"

#include "inventory/Log.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

const QString UsersFolder = u"C:/Users"_s;

bool belongsToTheSystem(const QString &profile)
{
    return profile == "Public"_L1 || profile == "All Users"_L1 || profile.startsWith("Default"_L1);
}

} // namespace

AccountScanner::AccountScanner(QObject *parent)
    : QObject(parent)
{
}

void AccountScanner::start()
{
    const quint64 run = m_runs.begin();
    if (run == 0)
        return;
    Q_EMIT started();
    Q_EMIT progress(0, tr("Scanning user accounts..."));
    const QList<AccountInfo> accounts = scanAccounts(run);
    if (m_runs.end(run))
        Q_EMIT finished(accounts);
    qCDebug(logInventory) << "Found" << accounts.size() << "user accounts";
}

void AccountScanner::cancel()
{
    m_runs.cancel();
    Q_EMIT cancelled();
}

QList<AccountInfo> AccountScanner::scanAccounts(quint64 run)
{
    Q_EMIT progress(50, tr("Enumerating Windows accounts..."));
    const QDir users(UsersFolder);
    if (!users.exists())
        return {};

    QList<AccountInfo> accounts;
    const QStringList profiles = users.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    int counter = 0;
    for (const QString &profile : profiles) {
        if (!m_runs.isCurrent(run))
            break;
        if (belongsToTheSystem(profile))
            continue;
        AccountInfo account;
        account.userName = profile;
        account.profilePath = users.absoluteFilePath(profile);
        if (QFileInfo(account.profilePath).isReadable())
            account.accountType = u"Local User"_s;
        accounts.append(account);
        counter += 100;
        Q_EMIT progress(counter / int(profiles.size()), profile);
    }
    return accounts;
}

} // namespace Zandrove
