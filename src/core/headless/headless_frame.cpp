#include "core/headless/headless_frame.h"

#include "core/table_kinds.h"

#include <algorithm>

namespace zolt {

std::string HeadlessFrame::TabCaption(int position) const {
    return position >= 0 && position < TabCount()
               ? tabs_[static_cast<std::size_t>(position)].caption
               : std::string();
}

void HeadlessFrame::AddTab(const std::string& caption) {
    tabs_.push_back({caption, -1});
}

void HeadlessFrame::RemoveTab(int position) {
    if (position < 0 || position >= TabCount())
        return;
    tabs_.erase(tabs_.begin() + position);
    if (current_ >= TabCount())
        current_ = TabCount() - 1;
}

void HeadlessFrame::SetTabCaption(int position, const std::string& caption) {
    if (position >= 0 && position < TabCount())
        tabs_[static_cast<std::size_t>(position)].caption = caption;
}

void HeadlessFrame::SetTabCaptionColor(int position, int rgb) {
    if (position >= 0 && position < TabCount())
        tabs_[static_cast<std::size_t>(position)].color = rgb;
}

int HeadlessFrame::TabCaptionColor(int position) const {
    return position >= 0 && position < TabCount() ? tabs_[static_cast<std::size_t>(position)].color
                                                  : -1;
}

WindowInfo* HeadlessFrame::find(int id) {
    const auto it = std::find_if(windows_.begin(), windows_.end(),
                                 [id](const WindowInfo& w) { return w.id == id; });
    return it == windows_.end() ? nullptr : &*it;
}

void HeadlessFrame::SetVisible(int id, bool visible) {
    if (auto* w = find(id)) {
        w->visible = visible;
        if (!visible)
            w->active = false;
    }
}

void HeadlessFrame::BringToTop(int id) {
    for (auto& w : windows_)
        w.active = w.id == id;
}

void HeadlessFrame::Unload(int id) {
    std::erase_if(windows_, [id](const WindowInfo& w) { return w.id == id; });
}

void HeadlessFrame::ShowTable(TableId tableIndex, int netlistIndex) {
    auto it = std::find_if(windows_.begin(), windows_.end(), [&](const WindowInfo& w) {
        return w.tableIndex == tableIndex && w.netlistIndex == netlistIndex;
    });
    if (it == windows_.end()) {
        windows_.push_back({nextId_++, TableFormName(tableIndex), TableCaption(tableIndex),
                            WindowKind::Table, tableIndex, netlistIndex, false, false});
        it = windows_.end() - 1;
    }
    it->visible = true;
    BringToTop(it->id);
}

} // namespace zolt
