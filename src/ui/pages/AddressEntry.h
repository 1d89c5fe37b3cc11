#pragma once

#include <QWidget>

class QHostInfo;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Zandrove {

/// A field for the address of the other PC, as IPv4 or as a host name, and below it a sentence about what is
/// wrong with what was entered. Names are looked up on another thread.
class AddressEntry final : public QWidget
{
    Q_OBJECT

public:
    explicit AddressEntry(QWidget *parent = nullptr);
    ~AddressEntry() override;

    void clear();
    [[nodiscard]] QString enteredText() const;
    /// A failure that has to do with what was entered. An empty text takes it back.
    void showError(const QString &text);

Q_SIGNALS:
    /// The user wants to connect to this IPv4 address, which he has entered himself or by a name.
    void addressEntered(const QString &address);

private:
    void onEntered();
    void onLookedUp(const QHostInfo &host);
    void forgetLookUp();
    void tell(const QString &text, bool isError);

    QLineEdit *m_field = nullptr;
    QPushButton *m_connect = nullptr;
    QLabel *m_message = nullptr;
    int m_lookUp = -1; ///< the number of the one under way
};

} // namespace Zandrove
