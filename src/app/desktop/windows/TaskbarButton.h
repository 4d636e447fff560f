#pragma once

#include "app/desktop/ITaskbarProgress.h"
#include "app/desktop/windows/Com.h"

struct ITaskbarList3;

namespace thisapp::desktop {

/// The progress on the button of the program's window in the taskbar.
class TaskbarButton final : public ITaskbarProgress
{
public:
    TaskbarButton();
    ~TaskbarButton() override;

    void show() override;
    void hide() override;
    void setValue(int percent) override;

private:
    void update();

    ComUse m_com;
    ComPointer<ITaskbarList3> m_list;
    int m_percent = 0;
    bool m_visible = false;
};

} // namespace thisapp::desktop
