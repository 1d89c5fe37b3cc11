#pragma once

#include <QColor>
#include <QLatin1StringView>
#include <QString>

/// The look of the window in one place: each colour once, by name, and the style sheets that recur.
namespace Zandrove::Theme {

/// The palette, in the form that style sheets write and QColor reads.
namespace Colour {

inline constexpr QLatin1StringView Primary("#3b82f6");
inline constexpr QLatin1StringView PrimaryHover("#2563eb");
inline constexpr QLatin1StringView PrimaryDisabled("#93c5fd");
inline constexpr QLatin1StringView PrimaryLight("#60a5fa");
inline constexpr QLatin1StringView PrimaryDark("#1d4ed8"); ///< left end of the title bar

inline constexpr QLatin1StringView BlueTint("#eff6ff");       ///< a selected card
inline constexpr QLatin1StringView BlueTintStrong("#dbeafe"); ///< a checked row
inline constexpr QLatin1StringView BlueBorder("#bfdbfe");
inline constexpr QLatin1StringView IndigoTint("#eef2ff");
inline constexpr QLatin1StringView IndigoTintStrong("#e0e7ff");
inline constexpr QLatin1StringView Indigo("#6366f1");

inline constexpr QLatin1StringView SkyTint("#f0f9ff");
inline constexpr QLatin1StringView SkyTintStrong("#e0f2fe");
inline constexpr QLatin1StringView SkyBorder("#bae6fd");
inline constexpr QLatin1StringView SkyText("#0369a1");

inline constexpr QLatin1StringView Success("#22c55e");
inline constexpr QLatin1StringView SuccessHover("#16a34a");
inline constexpr QLatin1StringView SuccessText("#059669");
inline constexpr QLatin1StringView SuccessTextDark("#15803d"); ///< "Resume"
inline constexpr QLatin1StringView SuccessTint("#ecfdf5");
inline constexpr QLatin1StringView SuccessSoftTint("#dcfce7");
inline constexpr QLatin1StringView SuccessSoftHover("#bbf7d0");

inline constexpr QLatin1StringView Danger("#ef4444");
inline constexpr QLatin1StringView DangerText("#dc2626");
inline constexpr QLatin1StringView DangerTint("#fee2e2");
inline constexpr QLatin1StringView DangerHover("#fecaca");
inline constexpr QLatin1StringView DangerRow("#fef2f2");

inline constexpr QLatin1StringView Amber("#fef3c7");
inline constexpr QLatin1StringView AmberText("#b45309");
inline constexpr QLatin1StringView AmberHover("#fde68a");

inline constexpr QLatin1StringView Orange("#f97316");
inline constexpr QLatin1StringView OrangeHover("#ea580c");
inline constexpr QLatin1StringView OrangePressed("#c2410c");
inline constexpr QLatin1StringView OrangeTint("#fff7ed");
inline constexpr QLatin1StringView OrangeLight("#fb923c");
inline constexpr QLatin1StringView Gold("#fbbf24"); ///< lower right of the logo

inline constexpr QLatin1StringView Teal("#10b981");
inline constexpr QLatin1StringView TealLight("#34d399");
inline constexpr QLatin1StringView TealDark("#14b8a6");

inline constexpr QLatin1StringView Violet("#8b5cf6");
inline constexpr QLatin1StringView VioletText("#7c3aed");
inline constexpr QLatin1StringView VioletTint("#faf5ff");

inline constexpr QLatin1StringView Text("#1f2937");
inline constexpr QLatin1StringView TextSecondary("#374151");
inline constexpr QLatin1StringView TextMuted("#6b7280");
inline constexpr QLatin1StringView TextFaint("#9ca3af");

inline constexpr QLatin1StringView BorderStrong("#d1d5db");
inline constexpr QLatin1StringView Border("#e5e7eb");
inline constexpr QLatin1StringView Hover("#f3f4f6");
inline constexpr QLatin1StringView Panel("#f9fafb");
inline constexpr QLatin1StringView CardHover("#fafafa");
inline constexpr QLatin1StringView White("#ffffff");

inline constexpr QLatin1StringView Slate("#1e293b");
inline constexpr QLatin1StringView SlateText("#334155");
inline constexpr QLatin1StringView SlateMuted("#64748b");
inline constexpr QLatin1StringView SlateFaint("#94a3b8");
inline constexpr QLatin1StringView SlateBorder("#e2e8f0");
inline constexpr QLatin1StringView SlateHover("#f1f5f9");

inline constexpr QLatin1StringView CloseHover("#E81123");

} // namespace Colour

/// What a status line tells.
enum class Status { Working, Success, Failure, Neutral };

enum Weight : int { Regular = 400, Medium = 500, SemiBold = 600, Bold = 700 };

/// A linear gradient from the upper left to the lower right, as the value of a background.
[[nodiscard]] QString gradient(QLatin1StringView from, QLatin1StringView to);
/// The same through a third colour half way.
[[nodiscard]] QString gradient(QLatin1StringView from, QLatin1StringView middle, QLatin1StringView to);

/// The style sheet of a label without a box of its own: size in pixels, colour, weight.
[[nodiscard]] QString textStyle(int pixels, QLatin1StringView colour, int weight = Regular);
/// A status line: 12 pixels, in the colour of `status`.
[[nodiscard]] QString statusStyle(Status status);

/// The properties of a filled box with round corners, for use within a style sheet. `background` is a colour
/// or a gradient(); a border is 1 pixel wide, none without a colour.
[[nodiscard]] QString boxProperties(const QString &background, int radius,
                                    QLatin1StringView border = QLatin1StringView());
/// The same as a whole style sheet for `type`, which names the widget itself and not its children:
/// "QLabel", "#NavBar".
[[nodiscard]] QString boxStyle(QLatin1StringView type, const QString &background, int radius,
                               QLatin1StringView border = QLatin1StringView());

/// The look of a push button. Colours left empty are not set.
struct ButtonLook
{
    QLatin1StringView background;
    QLatin1StringView hover;
    QLatin1StringView text = Colour::White;
    QLatin1StringView disabled;     ///< background while disabled
    QLatin1StringView pressed;      ///< background while pressed
    QLatin1StringView border;       ///< a border of 1 pixel
    QLatin1StringView hoverText;    ///< text while hovered
    QLatin1StringView disabledText; ///< text while disabled
    int fontPixels = 14;
    int weight = Medium;
    QLatin1StringView padding = QLatin1StringView("10px 24px");
    int radius = 8;
    int minimumWidth = 0; ///< of the text's area, in pixels; 0 for none
};

/// The filled blue button of the program.
[[nodiscard]] ButtonLook primaryButton();
/// The style sheet for a push button of this look.
[[nodiscard]] QString buttonStyle(const ButtonLook &look);

/// The look of a check box: 16 x 16, by the program's own pictures.
[[nodiscard]] QString checkBoxStyle();
/// The same for the boxes of a tree, whose indicator has another name.
[[nodiscard]] QString treeCheckBoxStyle();

/// A slim progress bar of this height in pixels, without text.
[[nodiscard]] QString progressBarStyle(int height, QLatin1StringView track = Colour::Border,
                                       QLatin1StringView chunk = Colour::Primary);

/// A scroll area without a frame and background, over whatever lies below.
[[nodiscard]] QString scrollAreaStyle();

/// A dialog of the program: white, text #334155 at 13 pixels, blue buttons.
[[nodiscard]] QString messageBoxStyle();

/// The menu of the title bar and its submenus.
[[nodiscard]] QString menuStyle();

} // namespace Zandrove::Theme
