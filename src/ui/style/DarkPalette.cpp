#include "ui/style/DarkPalette.h"

#include <utility>

namespace thisapp {

QPalette darkPalette()
{
    const std::pair<QPalette::ColorRole, QRgb> colors[] = {
        {QPalette::Window, 0x383838},      {QPalette::WindowText, 0xf0f0f0},
        {QPalette::Base, 0x1c1c1c},        {QPalette::AlternateBase, 0x262626},
        {QPalette::Text, 0xf0f0f0},        {QPalette::PlaceholderText, 0xa0a0a0},
        {QPalette::Button, 0x424242},      {QPalette::ButtonText, 0xf0f0f0},
        {QPalette::Light, 0x606060},       {QPalette::Midlight, 0x545454},
        {QPalette::Mid, 0x2c2c2c},         {QPalette::Dark, 0x181818},
        {QPalette::Shadow, 0x000000},      {QPalette::BrightText, 0xffffff},
        {QPalette::Highlight, 0x4ca6ff},   {QPalette::HighlightedText, 0x101010},
        {QPalette::Link, 0x8ac6ff},        {QPalette::LinkVisited, 0xc5a3ff},
        {QPalette::ToolTipBase, 0x3c3c3c}, {QPalette::ToolTipText, 0xf0f0f0},
    };
    QPalette palette;
    for (const auto& [role, color] : colors)
        palette.setColor(role, color);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, 0x9a9a9a);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, 0x505050);
    return palette;
}

} // namespace thisapp
