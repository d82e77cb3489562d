// The list box of files.
#pragma once

#include "controls/list_box.h"

// Shows the names of the files of a folder that match a pattern, in the order of their names, as
// they were at the last Refresh.
class FileListBox final : public ListBox {
    Q_OBJECT

  public:
    explicit FileListBox(QWidget* parent = nullptr) : ListBox(parent) { setSorted(true); }

    // The folder.
    QString Path() const { return path_; }
    void setPath(const QString& folder) { path_ = folder; }

    // "*" and an extension with its dot, as "*.ofp"; it matches without regard to case.
    QString Pattern() const { return pattern_; }
    void setPattern(const QString& pattern) { pattern_ = pattern; }

    // Reads the folder anew, and takes the selection away.
    void Refresh();

    // The selected file's name; empty if there is none.
    QString FileName() const { return Text(); }

  private:
    QString path_;
    QString pattern_;
};
