#pragma once

#include "app/job/Message.h"
#include "app/widgets/CDragDropFrame.h"
#include "common/naming/NamingSettings.h"
#include "common/settings/AlgSelection.h"

#include <QString>

class CDropHint;
class CLineEditForFile;
class CMessageLine;
class CProgressBarFrame;
class CQueueList;
class CSelectAlgFrame;
class QLabel;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QToolButton;
class QVBoxLayout;

namespace thisapp {

class FileQueue;

/// The widgets that a drop can fall on.
enum DropId { DropOnWindow, DropOnInput, DropOnOutput };

} // namespace thisapp

/// The main window's content: the fields of a job, its buttons and its messages. Files can be dropped
/// anywhere on it.
class CJobFrame final : public CDragDropFrame, public thisapp::IMessageAreas
{
    Q_OBJECT

public:
    /// The queue must outlive the frame.
    explicit CJobFrame(const thisapp::FileQueue& queue, QWidget* parent = nullptr);

    QString inputText() const;
    QString outputText() const;
    void setInputText(const QString& text);
    void setOutputText(const QString& text);
    CSelectAlgFrame& algFrame() { return *m_algFrame; }
    CQueueList& queueList() { return *m_queueList; }
    CProgressBarFrame& progressFrame() { return *m_progress; }

    /// Nothing scrolls, and a usual message fits in.
    QSize sizeHint() const override;
    void setDropReceiver(IFilesDragDropEvent* receiver);
    /// The file at hand and its size in bytes; none when the input isn't usable.
    void showFile(const QString& path, qint64 size);
    void showNoFile();
    /// The list instead of drop area and fields.
    void showQueue(bool shown);
    bool isQueueShown() const;
    /// Which of the two actions is likely to be wanted.
    void setDirection(thisapp::NamingDirection direction);
    /// Fields, algorithm and the two actions are for the time between jobs, Stop for that of one.
    void setRunning(bool running, bool stoppable);

    void showMessage(thisapp::Area area, thisapp::Message message) override;
    /// All but that of the progress bar.
    void clearMessages();
    QString resultText() const;

signals:
    /// The user, not the program, changed the input.
    void notifyInputEdited();
    /// The input changed, whoever changed it. Comes after notifyInputEdited.
    void notifyInputChanged();
    /// The text of one of the two fields changed, whoever changed it.
    void notifyTextChanged();
    void notifyAddFile();
    void notifyBrowseOutput();
    void notifyEncrypt();
    void notifyDecrypt();
    void notifyStop();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showColumn(QVBoxLayout* column);
    QWidget* makeSubject();
    void fitHint();
    void bringIntoSight(QWidget& widget);
    QLayout* makeRows();
    QLayout* makeButtons();
    void connectWidgets();
    void retranslate();
    void refreshHint();

    QScrollArea* m_area;
    QStackedWidget* m_subject;
    CQueueList* m_queueList;
    CMessageLine* m_queueMessage;
    CDropHint* m_hint;
    QLabel* m_inputLabel;
    CLineEditForFile* m_input;
    QToolButton* m_browseInput;
    CMessageLine* m_inputMessage;
    QLabel* m_outputLabel;
    CLineEditForFile* m_output;
    QToolButton* m_browseOutput;
    CMessageLine* m_outputMessage;
    CSelectAlgFrame* m_algFrame;
    QPushButton* m_encrypt;
    QPushButton* m_decrypt;
    QPushButton* m_stop;
    CProgressBarFrame* m_progress;
    CMessageLine* m_result;
    QString m_file;
    qint64 m_fileSize = 0;
    int m_heightBesideHint = 0; ///< what the rest takes in its usual state
};
