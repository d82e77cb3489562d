// The copying of adopted_interpretations.h.
#include "store/adopted_interpretations.h"

#include "store/statements.h"

void addAdoptedInterpretations(const OldDatabase& old, NewDatabase& made) {
    JetRows texts = old.rows(QStringLiteral("HLC"), {{QStringLiteral("Emot"), OldField::Number},
                                                     {QStringLiteral("Phys"), OldField::Number},
                                                     {QStringLiteral("Intel"), OldField::Number},
                                                     {QStringLiteral("interp"), OldField::Text}});
    RowAdder rows(made, statements::addInterpretation());
    while (texts.next()) {
        const std::vector<Value>& values = texts.values();
        rows.add({values[0], values[1], values[2], textOrNothing(values[3])});
    }
}
