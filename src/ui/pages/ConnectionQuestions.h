#pragma once

#include "core/common/Records.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QMessageBox;

namespace Zandrove {

class TransferEngine;

/// Puts the PCs that want to connect before the user: one dialog at a time, in the order in which they asked.
/// A dialog answers its own question and no other one, and goes by itself when its asker has gone.
///
/// In its first 700 ms a dialog takes no key and no click: whoever was typing or clicking when it came has
/// not answered it.
class ConnectionQuestions final : public QObject
{
    Q_OBJECT

public:
    /// The dialogs stand over `page`, which owns this object. `engine` outlives both.
    ConnectionQuestions(TransferEngine *engine, QWidget *page);

Q_SIGNALS:
    void asked(const QString &pcName);     ///< a dialog has opened
    void accepted(const QString &pcName);  ///< the user said yes, and the engine has been told
    void rejected();                       ///< the user said no, and the engine has been told
    void withdrawn(const QString &pcName); ///< the asker left before it was answered

private:
    void onRequested();
    void onEnded(quint64 number);
    void askNext();
    void ask(const ConnectionQuestion &question);
    void onAnswered(const ConnectionQuestion &question, bool yes);
    [[nodiscard]] bool isOpen(quint64 number) const;

    TransferEngine *m_engine;
    QWidget *m_page;
    QList<ConnectionQuestion> m_waiting; ///< to be shown once no other one is
    QPointer<QMessageBox> m_box;
    ConnectionQuestion m_shown; ///< by the box
};

} // namespace Zandrove
