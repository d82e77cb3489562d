// Makes an old person database: old_database FILE
#include "support/old_tables.h"

int main(int, char** arguments) {
    makeFile(QString::fromLocal8Bit(arguments[1]), oldDatabaseWithNoDate());
}
