// Texts of Qt's own that a user of Zandrove meets: buttons of dialogs, context menus, and errors of sockets and files
// that end up in a message. Their translations travel in the program's own files, because it loads no others and because
// Qt speaks not all of the program's languages. This file is read by lupdate alone and is never compiled.

static const char *const QtTexts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),

    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),

    QT_TRANSLATE_NOOP("QScrollBar", "Scroll here"),
    QT_TRANSLATE_NOOP("QScrollBar", "Left edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Right edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Top"),
    QT_TRANSLATE_NOOP("QScrollBar", "Bottom"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page right"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page down"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll right"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll down"),

    QT_TRANSLATE_NOOP("QAbstractSocket", "Connection refused"),
    QT_TRANSLATE_NOOP("QAbstractSocket", "Connection timed out"),
    QT_TRANSLATE_NOOP("QAbstractSocket", "Host not found"),
    QT_TRANSLATE_NOOP("QAbstractSocket", "Network unreachable"),
    QT_TRANSLATE_NOOP("QAbstractSocket", "Socket operation timed out"),

    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Connection refused"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Connection reset by peer"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Connection timed out"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Host unreachable"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Network dropped connection on reset"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Network operation timed out"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Network unreachable"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Permission denied"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "The address is not available"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "The remote host closed the connection"),
    QT_TRANSLATE_NOOP("QNativeSocketEngine", "Unknown error"),

    QT_TRANSLATE_NOOP("QIODevice", "No such file or directory"),
    QT_TRANSLATE_NOOP("QIODevice", "No space left on device"),
    QT_TRANSLATE_NOOP("QIODevice", "Permission denied"),
    QT_TRANSLATE_NOOP("QIODevice", "Too many open files"),
    QT_TRANSLATE_NOOP("QIODevice", "Unknown error"),
};
