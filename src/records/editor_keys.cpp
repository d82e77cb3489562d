// The table of editor_keys.h.
#include "records/editor_keys.h"

#include <Qt>

std::optional<BrowseCommand> browseCommandOf(int key, bool withCtrl) {
    switch (key) {
        case Qt::Key_Escape:
            return BrowseCommand::Close;
        case Qt::Key_End:
            return BrowseCommand::Last;
        case Qt::Key_Home:
            return BrowseCommand::First;
        case Qt::Key_Up:
        case Qt::Key_PageUp:
            return withCtrl ? BrowseCommand::First : BrowseCommand::Previous;
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            return withCtrl ? BrowseCommand::Last : BrowseCommand::Next;
        default:
            return std::nullopt;
    }
}
