#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;

namespace Zandrove {

/// A box with the four characters of a verification code.
class VerifyCodeWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit VerifyCodeWidget(QWidget *parent = nullptr);

    /// Shows the first four characters; a dash for each that is missing.
    void setCode(const QString &code);

private:
    QList<QLabel *> m_codeLabels;
};

} // namespace Zandrove
