-- The tables of the person database, "Ondara2.mdb".
-- Dates are days since 30 December 1899. The program orders NOCASE texts by its own comparison.
PRAGMA foreign_keys = ON;

CREATE TABLE Category (
    CatID INTEGER PRIMARY KEY AUTOINCREMENT,
    Category TEXT NOT NULL COLLATE NOCASE
);

CREATE TABLE Data (
    NameID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT NOT NULL COLLATE NOCASE,
    FName TEXT COLLATE NOCASE,
    Birthdate REAL NOT NULL,
    Gender INTEGER NOT NULL DEFAULT 0 CHECK (Gender IN (-1, 0)),
    CatID INTEGER NOT NULL REFERENCES Category (CatID) ON DELETE CASCADE,
    Notes TEXT COLLATE NOCASE
);

CREATE INDEX DataByCategory ON Data (CatID);
