#include "app/widgets/CProgressBarFrame.h"

#include "app/widgets/CMessageLine.h"

#include <QProgressBar>
#include <QVBoxLayout>

namespace {

/// Steps of the bar for one per cent, so that long jobs move, too.
constexpr int StepsPerPercent = 100;

} // namespace

CProgressBarFrame::CProgressBarFrame(QWidget* parent)
    : QFrame(parent), m_bar(new QProgressBar), m_message(new CMessageLine), m_notice(new CMessageLine)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_bar);
    layout->addWidget(m_message);
    layout->addWidget(m_notice);

    m_bar->setRange(0, 100 * StepsPerPercent);
    m_bar->setTextVisible(false);
    m_notice->hide();
    m_notice->setAnnounced(true);
    m_bar->setAccessibleName(tr("Progress"));
    hide(); // before it has a parent, showing it would make a window of it
}

void CProgressBarFrame::setProgress(float percent, thisapp::Message message)
{
    m_percent = percent;
    m_bar->setValue(static_cast<int>(percent * StepsPerPercent));
    m_message->setMessage(std::move(message));
    show();
}

void CProgressBarFrame::setNotice(thisapp::Message notice)
{
    m_notice->setVisible(!notice.isEmpty());
    m_notice->setMessage(std::move(notice));
    show();
}

void CProgressBarFrame::reset()
{
    hide();
    m_percent = 0;
    m_bar->setValue(0);
    m_message->clear();
    m_notice->clear();
    m_notice->hide();
}

QString CProgressBarFrame::message() const
{
    return m_message->text();
}

QString CProgressBarFrame::notice() const
{
    return m_notice->text();
}
