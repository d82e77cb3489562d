// The reading of an interpretation.
#include "store/interpretation.h"

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"

Value readInterpretation(Integer emotional, Integer physical, Integer intellectual) {
    Connection connection = openInterpretationDatabase();
    const Recordset row(connection, statements::interpretation(emotional, physical, intellectual),
                        adLockReadOnly);
    return row.Fields(u"interp");
}
