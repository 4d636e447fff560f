#include "app/desktop/windows/TaskbarButton.h"

#include "app/desktop/windows/MainWindow.h"

#include <QWidget>

#include <algorithm>
#include <shobjidl.h>

namespace thisapp::desktop {

TaskbarButton::TaskbarButton() : m_list(makeObject<ITaskbarList3>(CLSID_TaskbarList))
{
    if (m_list && FAILED(m_list->HrInit()))
        m_list.reset();
}

TaskbarButton::~TaskbarButton() = default;

void TaskbarButton::show()
{
    m_visible = true;
    update();
}

void TaskbarButton::hide()
{
    m_visible = false;
    update();
}

void TaskbarButton::setValue(int percent)
{
    percent = std::clamp(percent, 0, 100);
    if (m_percent == percent)
        return;
    m_percent = percent;
    update();
}

void TaskbarButton::update()
{
    const QWidget* window = mainWindow();
    if (!m_list || window == nullptr)
        return;
    const auto handle = reinterpret_cast<HWND>(window->winId());
    m_list->SetProgressState(handle, m_visible ? TBPF_NORMAL : TBPF_NOPROGRESS);
    if (m_visible)
        m_list->SetProgressValue(handle, static_cast<ULONGLONG>(m_percent), 100);
}

} // namespace thisapp::desktop
