#pragma once

#include <QList>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Zandrove {

class AddressEntry;

/// The right column of the page of connections: this PC's own code to read out, and below it boxes for the
/// other's code, in whose place a link puts a field for the other's address.
class CodeCards final : public QWidget
{
    Q_OBJECT

public:
    explicit CodeCards(QWidget *parent = nullptr);

    /// The code, and below it the addresses that this PC has now.
    void setOwnCode(const QString &code);
    void clearEntries();
    [[nodiscard]] AddressEntry *addressEntry() const { return m_address; }

Q_SIGNALS:
    void codeEntered(const QString &code); ///< all four characters, and the user wants to connect

private:
    [[nodiscard]] QWidget *createOwnCard();
    [[nodiscard]] QWidget *createOtherCard();
    [[nodiscard]] QWidget *createCodeEntry();
    void addEdit(QBoxLayout *row);
    void onEdited(int index, const QString &text);
    void onEntered();
    void showAddress(bool shown);
    [[nodiscard]] QString enteredCode() const;

    QList<QLabel *> m_labels;
    QLabel *m_addresses = nullptr;
    QWidget *m_codeEntry = nullptr;
    QList<QLineEdit *> m_edits;
    QPushButton *m_connect = nullptr;
    AddressEntry *m_address = nullptr;
    QPushButton *m_link = nullptr;
};

} // namespace Zandrove
