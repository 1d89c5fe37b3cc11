#include "ui/pages/DiagnosisPanel.h"

#include "ui/pages/ConnectionPage.h" // whose the texts are
#include "ui/pages/PageCard.h"
#include "ui/widgets/FindingRow.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Zandrove {

namespace Colour = Theme::Colour;

DiagnosisPanel::DiagnosisPanel(QWidget *parent)
    : QWidget(parent)
    , m_diagnosis(new Diagnosis(this))
{
    m_status = makeLabel({}, 12);
    m_status->setWordWrap(true);
    QPushButton *back = makeSmallButton(ConnectionPage::tr("Back to the devices"), linkButtonStyle());
    connect(back, &QPushButton::clicked, this, &DiagnosisPanel::closed);
    QVBoxLayout *layout = makePageCard(this);
    layout->addLayout(createHeading());
    layout->addWidget(m_status);
    layout->addWidget(createList(), 1);
    layout->addWidget(back, 0, Qt::AlignHCenter);

    connect(m_diagnosis, &Diagnosis::finding, this, &DiagnosisPanel::addFinding);
    connect(m_diagnosis, &Diagnosis::finished, this, &DiagnosisPanel::showEnd);
    connect(m_diagnosis, &Diagnosis::commandEnded, this, &DiagnosisPanel::showOutcome);
}

QBoxLayout *DiagnosisPanel::createHeading()
{
    QLabel *title =
        makeLabel(ConnectionPage::tr("Can't find the other PC?"), 16, Colour::Text, Theme::SemiBold);
    title->setWordWrap(true);
    m_again = makeSmallButton(ConnectionPage::tr("Check again"), quietButtonStyle());
    connect(m_again, &QPushButton::clicked, this, [this] { start(m_options); });
    auto *heading = new QHBoxLayout;
    heading->addWidget(title, 1);
    heading->addWidget(m_again);
    return heading;
}

QWidget *DiagnosisPanel::createList()
{
    auto *list = new QWidget;
    m_layout = new QVBoxLayout(list);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(8);
    m_layout->addStretch();
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setStyleSheet(Theme::scrollAreaStyle());
    area->setWidget(list);
    return area;
}

void DiagnosisPanel::start(const DiagnosisOptions &options)
{
    cancel();
    m_options = options;
    qDeleteAll(std::exchange(m_rows, {}));
    m_status->setStyleSheet(Theme::statusStyle(Theme::Status::Working));
    m_status->setText(ConnectionPage::tr("Looking at this PC and its network. This takes some seconds..."));
    m_again->setEnabled(false);
    m_diagnosis->start(options);
}

void DiagnosisPanel::cancel()
{
    m_diagnosis->cancel();
}

void DiagnosisPanel::addFinding(const Finding &finding)
{
    auto *row = new FindingRow(finding, Diagnosis::canAskForRights());
    connect(row, &FindingRow::runWanted, m_diagnosis, &Diagnosis::runWithRights);
    const auto place = std::find_if(m_rows.begin(), m_rows.end(), [&finding](const FindingRow *other) {
        return other->severity() < finding.severity;
    });
    m_layout->insertWidget(int(place - m_rows.begin()), row);
    m_rows.insert(place, row);
}

void DiagnosisPanel::showEnd(int problems)
{
    m_again->setEnabled(true);
    const bool isClear = problems == 0;
    m_status->setStyleSheet(Theme::statusStyle(isClear ? Theme::Status::Success : Theme::Status::Failure));
    m_status->setText(isClear
                          ? ConnectionPage::tr("Nothing was found here that stands in the way. Please check "
                                               "on the other PC as well.")
                          : ConnectionPage::tr("What is marked with ✗ stands in the way."));
}

void DiagnosisPanel::showOutcome(const QString &command, bool succeeded)
{
    for (FindingRow *row : std::as_const(m_rows)) {
        if (row->command() == command)
            row->showOutcome(succeeded);
    }
}

} // namespace Zandrove
