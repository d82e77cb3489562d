// The rules for forms.
#include "support/form_rules.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <algorithm>
#include <map>

namespace {

constexpr QSize kSmallestScreen(1024, 768);

std::string nameOf(const QObject& control) {
    return control.objectName().toStdString();
}

// A control of the form, and no part that Qt made a control of, that the Tab key can reach. One
// that hands the focus on to a part of itself is not reached, but the part is.
bool isTabStop(const QWidget& widget) {
    const QString name = widget.objectName();
    return widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy() && !name.isEmpty() &&
           !name.startsWith(QStringLiteral("qt_"));
}

std::vector<const QWidget*> tabStops(const QWidget& form) {
    std::vector<const QWidget*> stops;
    for (const QWidget* widget = form.nextInFocusChain(); widget != &form;
         widget = widget->nextInFocusChain()) {
        if (isTabStop(*widget) && widget->isVisibleTo(&form) && widget->isEnabledTo(&form))
            stops.push_back(widget);
    }
    return stops;
}

QRect placeOf(const QWidget& widget, const QWidget& form) {
    return {widget.mapTo(&form, QPoint(0, 0)), widget.size()};
}

bool comesAfter(const QRect& place, const QRect& earlier) {
    return place.left() > earlier.right() || place.top() > earlier.bottom();
}

bool hasBuddyLabel(const QWidget& form, const QWidget& control) {
    const auto labels = form.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->buddy() == &control; });
}

bool hasCaption(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button && !button->text().isEmpty();
}

// The parts of a kind that the form shows at the moment.
template <class Part>
std::vector<const Part*> shownParts(const QWidget& form) {
    std::vector<const Part*> shown;
    for (const auto* part : form.findChildren<Part*>()) {
        if (part->isVisibleTo(&form))
            shown.push_back(part);
    }
    return shown;
}

// The captions with letters for Alt, each with the name of what it belongs to.
std::vector<std::pair<QString, std::string>> captionsOf(const QWidget& form) {
    std::vector<std::pair<QString, std::string>> captions;
    for (const auto* button : shownParts<QAbstractButton>(form))
        captions.emplace_back(button->text(), nameOf(*button));
    for (const auto* group : shownParts<QGroupBox>(form))
        captions.emplace_back(group->title(), nameOf(*group));
    for (const auto* label : shownParts<QLabel>(form)) {
        if (label->buddy())
            captions.emplace_back(label->text(), nameOf(*label));
    }
    for (const auto* bar : form.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions())
            captions.emplace_back(menu->text(), nameOf(*menu->menu()));
    }
    return captions;
}

}  // namespace

Objections objectionsToTabOrder(const QWidget& form) {
    Objections objections;
    const QWidget* before = nullptr;
    for (const QWidget* stop : tabStops(form)) {
        if (before && !comesAfter(placeOf(*stop, form), placeOf(*before, form)))
            objections.push_back("Tab goes back from " + nameOf(*before) + " to " + nameOf(*stop));
        before = stop;
    }
    return objections;
}

Objections objectionsToNames(const QWidget& form) {
    Objections objections;
    for (const QWidget* control : form.findChildren<QWidget*>()) {
        const bool tellsSomething =
            isTabStop(*control) || qobject_cast<const QProgressBar*>(control);
        if (tellsSomething && control->accessibleName().isEmpty() && !hasCaption(*control) &&
            !hasBuddyLabel(form, *control))
            objections.push_back(nameOf(*control) + " has no name for who cannot see it");
    }
    return objections;
}

Objections objectionsToMnemonics(const QWidget& form, const std::string& sharedLetters) {
    Objections objections;
    std::map<QString, std::string> owners;
    for (const auto& [caption, owner] : captionsOf(form)) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        if (letter.isEmpty())
            continue;
        const auto [first, isNew] = owners.emplace(letter, owner);
        if (!isNew && sharedLetters.find(letter.back().toLatin1()) == std::string::npos)
            objections.push_back(first->second + " and " + owner + " share " +
                                 letter.toStdString());
    }
    return objections;
}

Objections objectionsToSize(const QWidget& form) {
    const QSize size = form.size().expandedTo(form.minimumSizeHint());
    if (size.boundedTo(kSmallestScreen) == size)
        return {};
    return {"it takes " + std::to_string(size.width()) + " by " + std::to_string(size.height())};
}
