-- The first contents of the person database: the categories, and people of history with the dates
-- of their births in today's calendar. Neither table may ever be empty.
INSERT INTO Category (Category) VALUES ('Family'), ('Friends'), ('Work'), ('Famous people');

-- Gender is -1 for a woman, 0 for a man.
WITH Famous (Name, FName, Born, Gender, Notes) AS (
    VALUES
        ('Austen', 'Jane', '1775-12-16', -1,
         'English novelist who wrote "Pride and Prejudice" and "Emma".'),
        ('Bolívar', 'Simón', '1783-07-24', 0,
         'Born in Caracas, he led much of South America to independence from Spain.'),
        ('Curie', 'Marie', '1867-11-07', -1,
         'Physicist and chemist, born in Warsaw, who won Nobel Prizes in both sciences.'),
        ('Darwin', 'Charles', '1809-02-12', 0,
         'English naturalist who explained the origin of species by natural selection.'),
        ('Earhart', 'Amelia', '1897-07-24', -1,
         'American pilot, the first woman to fly alone across the Atlantic.'),
        ('Gandhi', 'Mohandas', '1869-10-02', 0,
         'Indian lawyer who led his country''s non-violent struggle for independence.'),
        ('Kahlo', 'Frida', '1907-07-06', -1,
         'Mexican painter, known above all for her self-portraits.'),
        ('Kurosawa', 'Akira', '1910-03-23', 0,
         'Japanese film director who made "Rashomon" and "Seven Samurai".'),
        ('Lincoln', 'Abraham', '1809-02-12', 0,
         'President of the United States during the Civil War, born on the same day as Darwin.'),
        ('Lovelace', 'Ada', '1815-12-10', -1,
         'English mathematician who published a program for a computing machine in 1843.'),
        ('Maathai', 'Wangari', '1940-04-01', -1,
         'Kenyan biologist, founder of the Green Belt Movement, which plants trees.'),
        ('Mozart', 'Wolfgang Amadeus', '1756-01-27', 0,
         'Composer, born in Salzburg, who wrote more than six hundred works.')
)
INSERT INTO Data (Name, FName, Birthdate, Gender, CatID, Notes)
SELECT Name, FName, julianday(Born) - julianday('1899-12-30'), Gender,
       (SELECT CatID FROM Category WHERE Category = 'Famous people'), Notes
FROM Famous;
