#pragma once

#include <QJsonObject>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QStringList>

class QAction;
class QTreeWidgetItem;
class QWidget;

namespace Zandrove {

/// The window of the program as a user has it: what can be read, what can be pressed, a picture of it.
/// Controls are known by what they say, which is what a screen reader says too. Where a dialog or a menu
/// stands open, only that is seen.
class WizardView final
{
public:
    /// `window` is the main window.
    explicit WizardView(QWidget *window);

    /// Index of the wizard's page.
    [[nodiscard]] int page() const;
    /// The dialog, menu or window that takes the user's input.
    [[nodiscard]] QWidget *front() const;
    /// Title of the open dialog; empty without one.
    [[nodiscard]] QString dialogTitle() const;

    /// Everything that is written on visible labels and controls, or in the menu that stands open.
    [[nodiscard]] QStringList texts() const;
    /// The first visible control of that name, whether enabled or not; null without one.
    [[nodiscard]] QWidget *control(const QString &name) const;
    /// What a screen reader calls `widget`.
    [[nodiscard]] static QString nameOf(QWidget *widget);

    /// One click of the left mouse button, in the middle of the control, the tab or the menu entry of that
    /// name, as the window system would deliver it. False when there is no such thing in sight.
    bool click(const QString &name) const;
    /// The same on the box of the folder tree's item that stands for `path`, or on the entry of a list.
    bool clickFolder(const QString &path) const;
    bool clickListEntry(const QString &text) const;
    /// A key stroke, or the characters of a text, to whatever has the focus.
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const;
    void type(const QString &text) const;

    /// The window with an open dialog or menu over it.
    [[nodiscard]] QPixmap picture() const;
    /// Page, dialog, focus, the enabled controls, and all texts.
    [[nodiscard]] QJsonObject state() const;

private:
    /// Of the menu that stands open.
    [[nodiscard]] QList<QAction *> entries() const;

    QPointer<QWidget> m_window;
};

} // namespace Zandrove
