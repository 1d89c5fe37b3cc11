#include "ui/widgets/MissingItems.h"

#include "support/PrintableText.h"
#include "support/ReportDocument.h"
#include "support/RunTexts.h"
#include "ui/widgets/Labels.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int ListHeight = 150;
constexpr int TextPixels = 12;

QString reasonOf(const ItemResult &item)
{
    return printable(item.reason.isEmpty() ? outcomeText(item.outcome) : item.reason);
}

QString printableLines(QStringList lines)
{
    for (QString &line : lines)
        line = u"• "_s + printable(line);
    return lines.join(u'\n');
}

/// The items of a summary as rows, made into text only where they are looked at.
class ItemModel final : public QAbstractTableModel
{
public:
    enum Column : int { Path, Reason, ColumnCount };

    ItemModel(const RunSummary &summary, QObject *parent)
        : QAbstractTableModel(parent)
        , m_notArrived(summary.notArrived)
        , m_different(summary.different)
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_notArrived.size() + m_different.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : ColumnCount;
    }
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        const QString text = textAt(index.row(), index.column());
        return role == Qt::ToolTipRole ? plainToolTip(text) : text;
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return section == Path ? MissingItems::tr("Did not arrive") : MissingItems::tr("Reason");
    }
    [[nodiscard]] QString textAt(int row, int column) const
    {
        const ItemResult &item =
            row < m_notArrived.size() ? m_notArrived.at(row) : m_different.at(row - m_notArrived.size());
        return column == Path ? printable(item.path) : reasonOf(item);
    }

private:
    QList<ItemResult> m_notArrived;
    QList<ItemResult> m_different;
};

QString listStyle()
{
    using namespace Theme::Colour;
    return u"QTreeView { background: %1; border: 1px solid %2; border-radius: 8px; color: %3; font-size: "
           u"%4px; } "
           u"QTreeView::item { padding: 3px 6px; } "
           u"QTreeView::item:selected { background: %5; color: %3; } "
           u"QHeaderView::section { background: %6; border: none; border-bottom: 1px solid %2; color: %3; "
           u"font-size: %4px; padding: 4px 6px; }"_s.arg(White, Border, TextSecondary,
                                                         QString::number(TextPixels), BlueTintStrong, Panel);
}

QPushButton *makeButton(const QString &text)
{
    Theme::ButtonLook look;
    look.background = Theme::Colour::White;
    look.hover = Theme::Colour::Hover;
    look.border = Theme::Colour::BorderStrong;
    look.text = Theme::Colour::TextSecondary;
    look.fontPixels = TextPixels;
    look.padding = "6px 12px"_L1;
    look.radius = 6;
    auto *button = new QPushButton(text);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(Theme::buttonStyle(look));
    return button;
}

} // namespace

MissingItems::MissingItems(QWidget *parent)
    : QWidget(parent)
{
    m_fullVolumes = makeLabel(QString(), 13, Theme::Colour::DangerText, Theme::SemiBold);
    m_fullVolumes->setWordWrap(true);
    m_list = new QTreeView;
    m_list->setAccessibleName(tr("Did not arrive"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true); // or ten thousand rows would be measured
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setFixedHeight(ListHeight);
    m_list->setStyleSheet(listStyle());
    m_more = makeLabel(QString(), TextPixels, Theme::Colour::TextMuted);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_fullVolumes);
    layout->addWidget(m_list);
    layout->addWidget(m_more);
    layout->addWidget(createButtons());
    m_steps = makeLabel(QString(), 13, Theme::Colour::TextSecondary);
    m_steps->setWordWrap(true);
    layout->addWidget(m_steps);
}

QWidget *MissingItems::createButtons()
{
    QPushButton *copy = makeButton(tr("Copy list"));
    connect(copy, &QPushButton::clicked, this, &MissingItems::onCopyClicked);
    QPushButton *save = makeButton(tr("Save report…"));
    connect(save, &QPushButton::clicked, this, &MissingItems::onSaveClicked);
    m_status = makeLabel(QString(), TextPixels, Theme::Colour::TextMuted);
    m_status->setWordWrap(true);

    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(copy);
    layout->addWidget(save);
    layout->addWidget(m_status, 1);
    return buttons;
}

void MissingItems::setSummary(const RunSummary &summary)
{
    m_summary = summary;
    QStringList full;
    for (const FullVolume &volume : summary.fullVolumes)
        full.append(printable(fullVolumeText(volume)));
    m_fullVolumes->setText(full.join(u'\n'));
    m_fullVolumes->setVisible(!full.isEmpty());

    const QAbstractItemModel *former = m_list->model();
    auto *items = new ItemModel(summary, m_list);
    m_list->setModel(items);
    delete former;
    m_list->setVisible(items->rowCount() > 0);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->resizeSection(ItemModel::Path, 340);

    const int all = summary.files.missing() + summary.apps.missing() + summary.settings.missing();
    const QStringList unlisted = unlistedTexts(summary, all - items->rowCount());
    m_more->setText(printable(unlisted.join(u'\n')));
    m_more->setVisible(!unlisted.isEmpty());
    m_steps->setText(printableLines(nextSteps(summary)));
    m_status->clear();
}

void MissingItems::onCopyClicked()
{
    const ItemModel items(m_summary, nullptr);
    QString lines;
    for (int row = 0; row < items.rowCount(); ++row)
        lines += items.textAt(row, ItemModel::Path) + u'\t' + items.textAt(row, ItemModel::Reason) + u'\n';
    QGuiApplication::clipboard()->setText(lines);
    m_status->setText(tr("The list is on the clipboard."));
}

void MissingItems::onSaveClicked()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save report"), reportPathFor(m_summary),
                                                      tr("Page (*.html);;JSON (*.json)"));
    if (path.isEmpty())
        return;
    const QString problem = saveReport(m_summary, path);
    m_status->setText(problem.isEmpty() ? tr("The report is saved.") : printable(problem));
}

} // namespace Zandrove
