// The view of one page of the help.
#pragma once

#include <QTextBrowser>

#include "controls/help_folder.h"

// Shows pages of the help's folder and follows links between them, back and forward. A link to
// anything else opens nothing, and a picture that cannot be read leaves its place empty.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpBrowser(const HelpFolder& folder, QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

  private:
    const HelpFolder folder_;
    QUrl page_;
};
