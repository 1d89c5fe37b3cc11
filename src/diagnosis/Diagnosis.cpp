#include "diagnosis/Diagnosis.h"

#include "diagnosis/DiagnosisRun.h"
#include "platform/AdministratorRights.h"

#include <QThread>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace Zandrove {

Diagnosis::Diagnosis(QObject *parent)
    : QObject(parent)
{
}

Diagnosis::~Diagnosis()
{
    const QList<QThread *> threads = findChildren<QThread *>();
    for (QThread *thread : threads)
        thread->requestInterruption();
    for (QThread *thread : threads)
        thread->wait();
}

void Diagnosis::start(const DiagnosisOptions &options)
{
    if (isRunning())
        return;
    m_problems = 0;
    const quint64 number = ++m_number;
    m_thread = QThread::create([this, options, number] {
        runDiagnosis(options, [this, number](const QList<Finding> &findings) {
            QMetaObject::invokeMethod(
                this, [this, number, findings] { take(number, findings); }, Qt::QueuedConnection);
        });
        QMetaObject::invokeMethod(
            this, [this, number] { end(number); }, Qt::QueuedConnection);
    });
    m_thread->setParent(this);
    m_thread->setObjectName(u"diagnosis"_s);
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    m_thread->start();
}

void Diagnosis::cancel()
{
    if (!isRunning())
        return;
    m_thread->requestInterruption();
    m_thread = nullptr;
    ++m_number;
}

bool Diagnosis::canAskForRights()
{
    return Platform::canAskForRights();
}

void Diagnosis::runWithRights(const QString &command)
{
    // No child of this object: the system's question may outlive it, and nobody waits for that.
    const auto succeeded = std::make_shared<bool>(false);
    QThread *thread =
        QThread::create([command, succeeded] { *succeeded = Platform::runWithRights(command); });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this,
            [this, command, succeeded] { Q_EMIT commandEnded(command, *succeeded); });
    thread->start();
}

void Diagnosis::take(quint64 number, const QList<Finding> &findings)
{
    for (const Finding &one : findings) {
        if (number != m_number)
            return;
        m_problems += one.severity == Severity::Problem ? 1 : 0;
        Q_EMIT finding(one);
    }
}

void Diagnosis::end(quint64 number)
{
    if (number != m_number)
        return;
    m_thread = nullptr;
    Q_EMIT finished(m_problems);
}

} // namespace Zandrove
