#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

namespace Zandrove {

/// Resolves named web links to an address in the user's language, and opens them in the default browser. The
/// links are data: a JSON resource of the program.
///
/// Main thread only.
class LinkManager final : public QObject
{
    Q_OBJECT

public:
    /// The one manager of the process, made on first use and never deleted.
    [[nodiscard]] static LinkManager &instance();

    /// Reads the links from `document`; one that cannot be read leaves the manager without links. The
    /// language is the one of the user's settings or, where that is none of the document's, the system's.
    explicit LinkManager(const QString &document = QStringLiteral(":/links/links.json"),
                         QObject *parent = nullptr);

    [[nodiscard]] QString language() const { return m_currentLanguage; }

    /// The address of a link in the current language, else in the document's fallback language; empty when
    /// there is none.
    [[nodiscard]] QString getLink(const QString &category, const QString &key) const;

    /// Opens a link in the default browser. On failure the user is told in a modal dialog over `parent`, or
    /// not at all without one, and the result is false.
    bool openLink(const QString &category, const QString &key, QWidget *parent);

    /// Chooses the language of the links and writes it to the user's settings. A language that the document
    /// does not have, or that is in use already, changes nothing.
    void setLanguage(const QString &language);

    /// The language of the links for a system locale such as "pt_BR"; "en" where there is no better one.
    [[nodiscard]] static QString mapSystemLanguage(const QString &locale);

Q_SIGNALS:
    void languageChanged(const QString &newLanguage);

private:
    bool loadLinks(const QString &document);
    void loadMetadata(const QJsonObject &metadata);
    [[nodiscard]] QString detectLanguage() const;
    [[nodiscard]] QString lookupLink(const QString &category, const QString &key,
                                     const QString &language) const;

    QString m_currentLanguage;
    QString m_fallbackLanguage;
    QStringList m_supportedLanguages;
    QJsonObject m_links;
};

} // namespace Zandrove
