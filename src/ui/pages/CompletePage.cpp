#include "ui/pages/CompletePage.h"

#include "core/engine/TransferEngine.h"
#include "support/PrintableText.h"
#include "support/RunTexts.h"
#include "ui/Theme.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/MissingItems.h"
#include "ui/widgets/StatCard.h"

#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int MaximumContentWidth = 640;

/// A white box that answers to the mouse, by its object name.
QWidget *makeHoverBox(const QString &objectName)
{
    auto *box = new QWidget;
    box->setObjectName(objectName);
    box->setAttribute(Qt::WA_StyledBackground);
    box->setStyleSheet(u"#%1 { background: %2; border-radius: 8px; } #%1:hover { background: %3; }"_s.arg(
        objectName, Theme::Colour::White, Theme::Colour::CardHover));
    return box;
}

QHBoxLayout *makeBoxLayout(QWidget *box)
{
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setSpacing(10);
    return layout;
}

/// The sign of a run: done, or something to look at.
void showCircle(QLabel *circle, bool done)
{
    constexpr int Diameter = 72;
    using namespace Theme::Colour;
    circle->setText(done ? u"✓"_s : u"!"_s);
    circle->setStyleSheet(Theme::textStyle(36, done ? Success : AmberText) +
                          Theme::boxStyle("QLabel"_L1, done ? SuccessSoftTint : Amber, Diameter / 2));
    circle->setFixedSize(Diameter, Diameter);
    circle->setAlignment(Qt::AlignCenter);
}

/// What a report that counts messages has to say of things.
RunSummary summaryOf(const MigrationReport &report)
{
    RunSummary summary;
    summary.end = RunEnd::Complete;
    summary.files.arrived = report.filesSuccess;
    summary.apps.arrived = report.appsSuccess;
    summary.settings.arrived = report.settingsSuccess;
    summary.savedFolderPaths = report.savedFolderPaths;
    summary.savedFolderCounts = report.savedFolderCounts;
    summary.savedFolderSamples = report.savedFolderSamples;
    return summary;
}

QLabel *makeGlyph(const QString &glyph, int pixels)
{
    QLabel *label = makeLabel(glyph, pixels);
    label->setFixedWidth(24);
    return label;
}

} // namespace

CompletePage::CompletePage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connect(m_engine, &TransferEngine::transferCompleted, this, &CompletePage::setReport);
    connect(m_engine, &TransferEngine::runEnded, this, &CompletePage::setSummary);
    connect(m_engine, &TransferEngine::runRevised, this, &CompletePage::setSummary);
    connect(m_engine, &TransferEngine::settingsFinished, this, &CompletePage::onSettingsFinished);
}

void CompletePage::setupUi()
{
    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setStyleSheet(Theme::scrollAreaStyle());
    scroll->setFocusPolicy(Qt::NoFocus); // its rows scroll into view by themselves
    scroll->setWidget(createContent());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
}

QWidget *CompletePage::createContent()
{
    setupWaiting();
    setupSavedFolders();
    m_circle = makeLabel(QString(), 36);
    m_headline = makeCentredLabel(QString(), 26, Theme::Colour::Text, Theme::Bold);
    m_subtitle = makeCentredLabel(QString(), 14, Theme::Colour::TextMuted);
    m_counts = makeCentredLabel(QString(), 13, Theme::Colour::TextSecondary);
    m_missing = new MissingItems;

    auto *centred = new QWidget;
    centred->setMaximumWidth(MaximumContentWidth);
    auto *column = new QVBoxLayout(centred);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(m_circle, 0, Qt::AlignHCenter);
    column->addSpacing(16);
    column->addWidget(m_headline);
    column->addSpacing(8);
    column->addWidget(m_subtitle);
    column->addSpacing(24);
    column->addLayout(createCounters());
    column->addSpacing(12);
    column->addWidget(m_counts);
    column->addSpacing(12);
    column->addWidget(m_missing);
    column->addSpacing(8);
    column->addWidget(m_filesSavedWidget);
    column->addSpacing(20);
    column->addLayout(createButtons());
    column->addStretch();

    auto *content = new QWidget;
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(40, 24, 40, 24);
    layout->addStretch(1);
    layout->addWidget(centred, 100);
    layout->addStretch(1);
    return content;
}

QBoxLayout *CompletePage::createCounters()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(16);
    layout->addStretch();
    const auto addCard = [layout](int type, const QString &label) {
        auto *card = new StatCard(type);
        card->setLabel(label);
        layout->addWidget(card);
        return card;
    };
    m_filesCard = addCard(0, tr("Files"));
    m_appsCard = addCard(1, tr("Apps"));
    m_settingsCard = addCard(2, tr("Settings"));
    layout->addStretch();
    return layout;
}

void CompletePage::setupSavedFolders()
{
    m_filesSavedWidget = new QWidget;
    m_filesSavedWidget->setObjectName(u"filesSavedWidget"_s);
    m_filesSavedWidget->setAttribute(Qt::WA_StyledBackground);
    m_filesSavedWidget->setStyleSheet(
        Theme::boxStyle("#filesSavedWidget"_L1, Theme::Colour::SkyTint, 12, Theme::Colour::SkyBorder));

    auto *header = new QHBoxLayout;
    header->setSpacing(8);
    header->addWidget(makeLabel(u"📁"_s, 13));
    header->addWidget(makeLabel(tr("Files saved to:"), 13, Theme::Colour::SkyText, Theme::SemiBold));
    header->addStretch();
    auto *line = new QWidget;
    line->setFixedHeight(1);
    line->setAttribute(Qt::WA_StyledBackground);
    line->setStyleSheet(u"background: %1;"_s.arg(Theme::Colour::SkyTintStrong));
    m_folderListLayout = new QVBoxLayout;
    m_folderListLayout->setSpacing(6);

    auto *layout = new QVBoxLayout(m_filesSavedWidget);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(8);
    layout->addLayout(header);
    layout->addWidget(line);
    layout->addLayout(m_folderListLayout);
    layout->addWidget(m_waitingWidget);
    m_filesSavedWidget->hide();
}

void CompletePage::setupWaiting()
{
    m_waitingWidget = makeHoverBox(u"waitingWidget"_s);
    m_waitingLabel = makeLabel(tr("Waiting for more files..."), 12, Theme::Colour::TextMuted);
    QHBoxLayout *layout = makeBoxLayout(m_waitingWidget);
    layout->addWidget(makeGlyph(u"📡"_s, 16));
    layout->addWidget(m_waitingLabel);
    layout->addStretch();
    m_waitingWidget->hide();
}

QBoxLayout *CompletePage::createButtons()
{
    const auto makeButton = [](const QString &text, const QString &spoken, Theme::ButtonLook look) {
        look.padding = "12px 24px"_L1;
        auto *button = new QPushButton(text);
        button->setAccessibleName(spoken);
        button->setCursor(Qt::PointingHandCursor);
        button->setStyleSheet(Theme::buttonStyle(look));
        button->setSizePolicy(QSizePolicy::Minimum,
                              QSizePolicy::Preferred); // one height, whatever the glyphs
        return button;
    };
    Theme::ButtonLook finishLook;
    finishLook.background = Theme::Colour::Hover;
    finishLook.hover = Theme::Colour::Border;
    finishLook.border = Theme::Colour::BorderStrong;
    finishLook.text = Theme::Colour::TextSecondary;

    m_finishButton = makeButton(tr("✓ Finished"), tr("Finished"), finishLook);
    connect(m_finishButton, &QPushButton::clicked, this, &CompletePage::sessionEndRequested);
    m_sendMoreButton =
        makeButton(tr("📂 Send More Files..."), tr("Send More Files..."), Theme::primaryButton());
    connect(m_sendMoreButton, &QPushButton::clicked, this, &CompletePage::backToSelectionRequested);

    auto *layout = new QHBoxLayout;
    layout->setSpacing(12);
    layout->addStretch();
    layout->addWidget(m_finishButton);
    layout->addWidget(m_sendMoreButton);
    layout->addStretch();
    return layout;
}

void CompletePage::setReport(const MigrationReport &report)
{
    setSummary(summaryOf(report));
}

void CompletePage::setSummary(const RunSummary &summary)
{
    m_summary = summary;
    showHeadline();
    showCounts();

    const bool receives = m_engine->role() == NewPC;
    if (receives) {
        m_savedFolders = savedFolders();
        rebuildFolderRows();
    }
    m_filesSavedWidget->setVisible(receives);
    m_waitingWidget->setVisible(receives && summary.end != RunEnd::LinkLost);
    m_sendMoreButton->setVisible(!receives && summary.end != RunEnd::LinkLost);
    m_finishButton->setVisible(!receives);
}

void CompletePage::showHeadline()
{
    const bool done = m_summary.everythingArrived();
    showCircle(m_circle, done);
    m_headline->setText(printable(headlineOf(m_summary)));
    m_headline->setStyleSheet(
        Theme::textStyle(26, done ? Theme::Colour::Text : Theme::Colour::AmberText, Theme::Bold));
    if (done)
        m_subtitle->setText(tr("Your files, apps and settings have been successfully transferred"));
    else if (m_summary.end == RunEnd::Complete)
        m_subtitle->setText(nextSteps(m_summary).constLast());
    else
        m_subtitle->setText(arrivedFilesText(m_summary));
    m_missing->setVisible(!done);
    if (!done)
        m_missing->setSummary(m_summary);
}

void CompletePage::showCounts()
{
    m_filesCard->setValue(countText(m_summary.files.arrived));
    m_appsCard->setValue(countText(m_summary.apps.arrived));
    m_settingsCard->setValue(countText(m_summary.settings.arrived));

    QStringList lines;
    const OutcomeCounts &files = m_summary.files;
    if (files.total() > files.arrived) {
        lines.append(tr("Files: %1 arrived, %2 were there already and identical, %3 were there already and "
                        "different, %4 failed or are not confirmed")
                         .arg(countText(files.arrived), countText(files.wasThere),
                              countText(files.wasDifferent),
                              countText(files.missing() - files.wasDifferent)));
    }
    if (const int missing = m_summary.apps.missing())
        lines.append(
            tr("%1 of %2 apps did not arrive").arg(countText(missing), countText(m_summary.apps.total())));
    if (const int missing = m_summary.settings.missing())
        lines.append(tr("%1 of %2 settings did not arrive")
                         .arg(countText(missing), countText(m_summary.settings.total())));
    const bool tellsOfSending = m_summary.role == OldPC && !m_summary.peerName.isEmpty();
    if (tellsOfSending && m_summary.apps.arrived + m_summary.settings.arrived > 0)
        lines.append(tr("Apps and settings were sent. What became of them stands on the page of %1.")
                         .arg(printable(m_summary.peerName)));
    m_counts->setText(lines.join(u'\n'));
    m_counts->setVisible(!lines.isEmpty());
}

/// The last settings may still have been in the works when the report was made.
void CompletePage::onSettingsFinished(int succeeded)
{
    const RunSummary summary = m_engine->summary();
    if (summary.end != RunEnd::Running)
        setSummary(summary);
    else
        m_settingsCard->setValue(countText(succeeded));
}

QList<CompletePage::SavedFolderEntry> CompletePage::savedFolders() const
{
    if (m_summary.savedFolderPaths.isEmpty()) {
        const QString target =
            QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + u"/Zandrove"_s;
        if (!QDir(target).exists())
            return {};
        return {{tr("Received Files"), target, QString(), m_summary.files.arrived}};
    }
    QList<SavedFolderEntry> entries;
    for (const auto &[name, path] : m_summary.savedFolderPaths.asKeyValueRange())
        entries.append(
            {name, path, m_summary.savedFolderSamples.value(name), m_summary.savedFolderCounts.value(name)});
    return entries;
}

void CompletePage::rebuildFolderRows()
{
    while (QLayoutItem *item = m_folderListLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const SavedFolderEntry &entry : std::as_const(m_savedFolders))
        m_folderListLayout->addWidget(createFolderRow(entry));
    m_filesSavedWidget->setVisible(!m_savedFolders.isEmpty());
}

QWidget *CompletePage::createFolderRow(const SavedFolderEntry &entry)
{
    auto *path = new ElidedLabel(entry.path, 10, Theme::Colour::TextMuted);
    path->setElideMode(Qt::ElideMiddle);
    path->setToolTip(plainToolTip(entry.path));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(new ElidedLabel(printable(entry.name), 12, Theme::Colour::Text, Theme::SemiBold));
    texts->addWidget(path);
    if (!entry.sample.isEmpty()) {
        auto *sample = new ElidedLabel(printable(entry.sample), 10, Theme::Colour::TextFaint);
        sample->setStyleSheet(sample->styleSheet() + u" QLabel { font-style: italic; }"_s);
        texts->addWidget(sample);
    }

    QWidget *row = makeHoverBox(u"folderItem"_s);
    QHBoxLayout *layout = makeBoxLayout(row);
    layout->addWidget(makeGlyph(u"📂"_s, 18));
    layout->addLayout(texts, 1);
    layout->addWidget(makeLabel(tr("%1 files").arg(entry.fileCount), 11, Theme::Colour::TextMuted));
    layout->addWidget(createOpenButton(entry));
    return row;
}

QPushButton *CompletePage::createOpenButton(const SavedFolderEntry &entry)
{
    Theme::ButtonLook look;
    look.background = Theme::Colour::BlueTint;
    look.hover = Theme::Colour::BlueTintStrong;
    look.border = Theme::Colour::BlueBorder;
    look.text = Theme::Colour::PrimaryHover;
    look.fontPixels = 11;
    look.padding = "4px 10px"_L1;
    look.radius = 5;

    auto *button = new QPushButton(tr("Open"));
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(Theme::buttonStyle(look));
    button->setProperty("folderPath", entry.path);
    button->setAccessibleDescription(entry.name);
    connect(button, &QPushButton::clicked, button,
            [path = entry.path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    return button;
}

void CompletePage::onOpenFolder(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace Zandrove
