#include "app/window/CJobFrame.h"

#include "app/queue/CQueueList.h"
#include "app/widgets/CDropHint.h"
#include "app/widgets/CLineEditForFile.h"
#include "app/widgets/CMessageLine.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/widgets/SymbolicIcon.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/style/CIconButton.h"

#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace thisapp;

namespace {

/// In the window's usual size.
constexpr int UsualHintLines = 8;

} // namespace

CJobFrame::CJobFrame(const FileQueue& queue, QWidget* parent)
    : CDragDropFrame(parent),
      m_area(new QScrollArea),
      m_subject(new QStackedWidget),
      m_queueList(new CQueueList(queue)),
      m_queueMessage(new CMessageLine),
      m_hint(new CDropHint),
      m_inputLabel(new QLabel),
      m_input(new CLineEditForFile),
      m_browseInput(new QToolButton),
      m_inputMessage(new CMessageLine),
      m_outputLabel(new QLabel),
      m_output(new CLineEditForFile),
      m_browseOutput(new QToolButton),
      m_outputMessage(new CMessageLine),
      m_algFrame(new CSelectAlgFrame),
      m_encrypt(new CIconButton),
      m_decrypt(new CIconButton),
      m_stop(new CIconButton),
      m_progress(new CProgressBarFrame),
      m_result(new CMessageLine)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(fontMetrics().height() * 2 / 3);
    column->addWidget(makeSubject());
    column->addWidget(m_algFrame);
    column->addLayout(makeButtons());
    column->addWidget(m_progress);
    column->addWidget(m_result);
    column->addStretch();
    showColumn(column);

    m_input->setObjectName(QStringLiteral("lineEditInput"));
    m_output->setObjectName(QStringLiteral("lineEditOutput"));
    m_inputMessage->setObjectName(QStringLiteral("inputMessage"));
    m_outputMessage->setObjectName(QStringLiteral("outputMessage"));
    m_queueMessage->setObjectName(QStringLiteral("queueMessage"));
    m_result->setObjectName(QStringLiteral("resultMessage"));
    m_encrypt->setObjectName(QStringLiteral("buttonEncrypt"));
    m_decrypt->setObjectName(QStringLiteral("buttonDecrypt"));
    m_stop->setObjectName(QStringLiteral("buttonStop"));
    for (CMessageLine* line : {m_inputMessage, m_outputMessage, m_result, m_queueMessage})
        line->setAnnounced(true);
    connectWidgets();
    setRunning(false, false);
    retranslate();
    setDirection(NamingDirection::Encryption);
    m_input->setFocus();
    fitHint();
}

/// In a very large window the column stays in reach of the eye: its width and the hint's height are
/// limited. In a very small one it scrolls.
void CJobFrame::showColumn(QVBoxLayout* column)
{
    auto* content = new QWidget;
    content->setLayout(column);
    column->setContentsMargins({});
    content->setMaximumWidth(130 * fontMetrics().averageCharWidth());
    auto* page = new QWidget;
    auto* centred = new QHBoxLayout(page);
    centred->addStretch();
    centred->addWidget(content, 1);
    centred->addStretch();
    m_area->setWidget(page);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_area);
}

/// What the job is about: one file with its fields, or the list.
QWidget* CJobFrame::makeSubject()
{
    const auto addPage = [this](QVBoxLayout* layout) {
        auto* page = new QWidget;
        page->setLayout(layout);
        layout->setContentsMargins({});
        m_subject->addWidget(page);
    };
    auto* file = new QVBoxLayout;
    file->setSpacing(fontMetrics().height() * 2 / 3);
    file->addWidget(m_hint);
    file->addLayout(makeRows());
    file->addStretch();
    addPage(file);
    auto* list = new QVBoxLayout;
    list->addWidget(m_queueList, 1);
    list->addWidget(m_queueMessage);
    addPage(list);
    return m_subject;
}

QLayout* CJobFrame::makeRows()
{
    auto* grid = new QGridLayout;
    const auto addRow = [grid](int row, QLabel* label, CLineEditForFile* field, QToolButton* browse,
                               CMessageLine* message) {
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(browse, row, 2);
        grid->addWidget(message, row + 1, 1, 1, 2);
        label->setBuddy(field);
        browse->setIcon(symbolicIcon(QStringLiteral("browse")));
    };
    addRow(0, m_inputLabel, m_input, m_browseInput, m_inputMessage);
    addRow(2, m_outputLabel, m_output, m_browseOutput, m_outputMessage);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(
        m_algFrame->layout()->spacing()); // its combo box stands in line with the fields
    grid->setVerticalSpacing(fontMetrics().height() / 4);
    return grid;
}

QLayout* CJobFrame::makeButtons()
{
    auto* row = new QHBoxLayout;
    const int unit = fontMetrics().height();
    const auto addButton = [row, unit](QPushButton* button, const char* icon, int stretch) {
        button->setIcon(symbolicIcon(icon));
        button->setIconSize(QSize(unit, unit) * 3 / 2);
        button->setMinimumHeight(unit * 5 / 2);
        row->addWidget(button, stretch);
    };
    addButton(m_encrypt, "encrypt", 2);
    addButton(m_decrypt, "decrypt", 2);
    addButton(m_stop, "stop", 1);
    return row;
}

void CJobFrame::connectWidgets()
{
    connect(m_input, &QLineEdit::textEdited, this, &CJobFrame::notifyInputEdited);
    connect(m_input, &QLineEdit::textChanged, this, &CJobFrame::notifyInputChanged);
    connect(m_input, &QLineEdit::textChanged, this, &CJobFrame::notifyTextChanged);
    connect(m_output, &QLineEdit::textChanged, this, &CJobFrame::notifyTextChanged);
    connect(m_input, &QLineEdit::textChanged, m_inputMessage, &CMessageLine::setFieldText);
    connect(m_output, &QLineEdit::textChanged, m_outputMessage, &CMessageLine::setFieldText);
    connect(m_browseInput, &QToolButton::clicked, this, &CJobFrame::notifyAddFile);
    connect(m_hint, &CDropHint::clicked, this, &CJobFrame::notifyAddFile);
    connect(m_queueList, &CQueueList::notifyAdd, this, &CJobFrame::notifyAddFile);
    connect(m_browseOutput, &QToolButton::clicked, this, &CJobFrame::notifyBrowseOutput);
    connect(m_encrypt, &QPushButton::clicked, this, &CJobFrame::notifyEncrypt);
    connect(m_decrypt, &QPushButton::clicked, this, &CJobFrame::notifyDecrypt);
    connect(m_stop, &QPushButton::clicked, this, &CJobFrame::notifyStop);
    connect(this, &CDragDropFrame::notifyDragOver, m_hint, &CDropHint::setHighlighted);
    connect(this, &CDragDropFrame::notifyDragOver, m_queueList, &CQueueList::setHighlighted);
}

QString CJobFrame::inputText() const
{
    return m_input->text();
}

QString CJobFrame::outputText() const
{
    return m_output->text();
}

void CJobFrame::setInputText(const QString& text)
{
    m_input->setText(text);
}

void CJobFrame::setOutputText(const QString& text)
{
    m_output->setText(text);
}

void CJobFrame::setDropReceiver(IFilesDragDropEvent* receiver)
{
    setDropTarget({receiver, DropOnWindow});
    m_input->setDropTarget({receiver, DropOnInput});
    m_output->setDropTarget({receiver, DropOnOutput});
}

void CJobFrame::showFile(const QString& path, qint64 size)
{
    m_file = path;
    m_fileSize = size;
    refreshHint();
}

void CJobFrame::showNoFile()
{
    showFile({}, 0);
}

void CJobFrame::showQueue(bool shown)
{
    // What is not shown takes no room.
    const auto policy = shown ? QSizePolicy::Ignored : QSizePolicy::Preferred;
    m_subject->widget(0)->setSizePolicy(policy, policy);
    m_subject->setCurrentIndex(shown ? 1 : 0);
}

bool CJobFrame::isQueueShown() const
{
    return m_subject->currentIndex() == 1;
}

void CJobFrame::setDirection(NamingDirection direction)
{
    m_encrypt->setDefault(direction == NamingDirection::Encryption);
    m_decrypt->setDefault(direction == NamingDirection::Decryption);
}

void CJobFrame::setRunning(bool running, bool stoppable)
{
    if (running && m_encrypt->isEnabled())
        bringIntoSight(*m_progress);
    const std::initializer_list<QWidget*> idleWidgets = {
        m_hint,   m_inputLabel,   m_input,    m_browseInput, m_outputLabel,
        m_output, m_browseOutput, m_algFrame, m_encrypt,     m_decrypt};
    for (QWidget* widget : idleWidgets)
        widget->setEnabled(!running);
    m_queueList->setRunning(running);
    m_stop->setEnabled(stoppable);
    setAcceptDrops(!running);
}

void CJobFrame::showMessage(Area area, Message message)
{
    switch (area) {
    case Area::Progress:
        m_progress->setNotice(std::move(message));
        break;
    case Area::Input:
        (isQueueShown() ? m_queueMessage : m_inputMessage)->setMessage(std::move(message));
        break;
    case Area::Output:
        m_outputMessage->setMessage(std::move(message));
        break;
    case Area::Result:
        if (!message.isEmpty())
            bringIntoSight(*m_result);
        m_result->setMessage(std::move(message));
        break;
    }
}

void CJobFrame::clearMessages()
{
    for (CMessageLine* line : {m_inputMessage, m_outputMessage, m_result, m_queueMessage})
        line->clear();
}

QString CJobFrame::resultText() const
{
    return m_result->text();
}

bool CJobFrame::event(QEvent* event)
{
    const bool handled = CDragDropFrame::event(event);
    // By now the children have their new texts, too.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        m_heightBesideHint = 0;
    return handled;
}

void CJobFrame::resizeEvent(QResizeEvent* event)
{
    CDragDropFrame::resizeEvent(event);
    fitHint();
}

void CJobFrame::bringIntoSight(QWidget& widget)
{
    QTimer::singleShot(0, &widget,
                       [this, &widget] { m_area->ensureWidgetVisible(&widget, 0, 0); }); // once laid out
}

QSize CJobFrame::sizeHint() const
{
    return {90 * fontMetrics().averageCharWidth(),
            m_heightBesideHint + UsualHintLines * fontMetrics().height()};
}

/// The hint's height depends on that of the window alone, not on what there is to say: whoever aims at it
/// finds it where it was.
void CJobFrame::fitHint()
{
    const int line = fontMetrics().height();
    if (m_heightBesideHint == 0) {
        // With the progress, and a result of two lines.
        m_hint->setFixedHeight(UsualHintLines * line);
        m_heightBesideHint = m_area->widget()->sizeHint().height() + m_progress->sizeHint().height() +
                             (4 - UsualHintLines) * line;
    }
    m_hint->setFixedHeight(
        std::clamp(height() - m_heightBesideHint, m_hint->minimumSizeHint().height(), 18 * line));
    m_subject->widget(1)->setFixedHeight(m_subject->widget(0)->minimumSizeHint().height());
}

void CJobFrame::retranslate()
{
    m_inputLabel->setText(tr("&Input file:"));
    m_outputLabel->setText(tr("Out&put file:"));
    m_input->setPlaceholderText(tr("File to encrypt or decrypt"));
    m_output->setPlaceholderText(tr("File to write"));
    m_browseInput->setToolTip(tr("Choose the input file"));
    m_browseOutput->setToolTip(tr("Choose the output file"));
    m_browseInput->setAccessibleName(m_browseInput->toolTip());
    m_browseOutput->setAccessibleName(m_browseOutput->toolTip());
    m_encrypt->setText(tr("Encrypt"));
    m_decrypt->setText(tr("Decrypt"));
    m_stop->setText(tr("Stop"));
    const auto describe = [](QPushButton* button, const QString& text) {
        button->setToolTip(text);
        button->setAccessibleDescription(text);
    };
    describe(m_encrypt, tr("Write an encrypted file; the input stays as it is"));
    describe(m_decrypt, tr("Write the file that was encrypted; the input stays as it is"));
    describe(m_stop, tr("End the work; nothing half done is left behind"));
    const int width = std::max(
        {m_inputLabel->sizeHint().width(), m_outputLabel->sizeHint().width(), m_algFrame->labelWidth()});
    m_inputLabel->setMinimumWidth(width);
    m_algFrame->setLabelWidth(width);
    refreshHint();
}

void CJobFrame::refreshHint()
{
    if (m_file.isEmpty())
        m_hint->setContent(QStringLiteral("drop"), tr("Drop files here"), tr("or click to choose"));
    else
        m_hint->setContent(QStringLiteral("file"), QFileInfo(m_file).fileName(),
                           QLocale().formattedDataSize(m_fileSize, 1));
}
