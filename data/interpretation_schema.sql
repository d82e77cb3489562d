-- The table of the interpretation database, "Interp.mdb": a text for each combination of the three
-- cycles' states, -1 low, 0 critical, 1 high.
CREATE TABLE HLC (
    Emot INTEGER NOT NULL CHECK (Emot IN (-1, 0, 1)),
    Phys INTEGER NOT NULL CHECK (Phys IN (-1, 0, 1)),
    Intel INTEGER NOT NULL CHECK (Intel IN (-1, 0, 1)),
    interp TEXT NOT NULL,
    PRIMARY KEY (Emot, Phys, Intel)
);
