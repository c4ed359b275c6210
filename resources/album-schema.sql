-- The tables of a new album. Album.tpl is made from this at build time; nothing else creates tables.
--
-- Plain tables and indexes only: the file opens in any program that reads the format, and an album
-- that holds anything else is refused. Identifiers are AUTOINCREMENT, so that one never comes back
-- after its row was deleted. Texts compare without regard to case, picture paths as they are
-- written. Long texts come last in a row: reading a field behind one means reading all of it.

CREATE TABLE "Chapter" (
    "Id" INTEGER PRIMARY KEY AUTOINCREMENT,
    "FirstParagraph" INTEGER NOT NULL DEFAULT 0,
    "PreviousChapter" INTEGER NOT NULL DEFAULT 0,
    "NextChapter" INTEGER NOT NULL DEFAULT 0,
    "Name" TEXT COLLATE NOCASE UNIQUE
);
CREATE INDEX "ChapterByPrevious" ON "Chapter" ("PreviousChapter");

CREATE TABLE "Paragraph" (
    "Id" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Chapter" INTEGER NOT NULL DEFAULT 0,
    "PreviousParagraph" INTEGER NOT NULL DEFAULT 0,
    "NextParagraph" INTEGER NOT NULL DEFAULT 0,
    "FileSelection" TEXT COLLATE NOCASE,
    "Car0" TEXT COLLATE NOCASE,
    "Car1" TEXT COLLATE NOCASE,
    "Car2" TEXT COLLATE NOCASE,
    "Car3" TEXT COLLATE NOCASE,
    "Car4" TEXT COLLATE NOCASE,
    "Car5" TEXT COLLATE NOCASE,
    "Car6" TEXT COLLATE NOCASE,
    "Car7" TEXT COLLATE NOCASE,
    "Car8" TEXT COLLATE NOCASE,
    "Car9" TEXT COLLATE NOCASE,
    "Car10" TEXT COLLATE NOCASE,
    "Car11" TEXT COLLATE NOCASE,
    "Text" TEXT COLLATE NOCASE
);
CREATE INDEX "ParagraphByChapter" ON "Paragraph" ("Chapter", "PreviousParagraph");

CREATE TABLE "Image" (
    "File" TEXT,
    "SourceFile" TEXT DEFAULT '',
    "Car0" TEXT COLLATE NOCASE,
    "Car1" TEXT COLLATE NOCASE,
    "Car2" TEXT COLLATE NOCASE,
    "Car3" TEXT COLLATE NOCASE,
    "Car4" TEXT COLLATE NOCASE,
    "Car5" TEXT COLLATE NOCASE,
    "Car6" TEXT COLLATE NOCASE,
    "Car7" TEXT COLLATE NOCASE,
    "Car8" TEXT COLLATE NOCASE,
    "Car9" TEXT COLLATE NOCASE,
    "Car10" TEXT COLLATE NOCASE,
    "Car11" TEXT COLLATE NOCASE,
    "Legend" TEXT COLLATE NOCASE
);
CREATE INDEX "ImageByFile" ON "Image" ("File");

CREATE TABLE "LinkedImages" (
    "ParagraphId" INTEGER NOT NULL DEFAULT 0,
    "File" TEXT
);
CREATE INDEX "LinkedImagesByParagraph" ON "LinkedImages" ("ParagraphId");

CREATE TABLE "Params" ("Param" TEXT COLLATE NOCASE UNIQUE, "Value" TEXT COLLATE NOCASE);

-- Columns 6 to 8 of a picture share the values of columns 3 to 5.
CREATE TABLE "Car0" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car1" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car2" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car3" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car4" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car5" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car9" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car10" ("Name" TEXT COLLATE NOCASE UNIQUE);
CREATE TABLE "Car11" ("Name" TEXT COLLATE NOCASE UNIQUE);

-- The marker for "no value" is offered in every table.
INSERT INTO "Car0" VALUES ('-');
INSERT INTO "Car1" VALUES ('-');
INSERT INTO "Car2" VALUES ('-');
INSERT INTO "Car3" VALUES ('-');
INSERT INTO "Car4" VALUES ('-');
INSERT INTO "Car5" VALUES ('-');
INSERT INTO "Car9" VALUES ('-');
INSERT INTO "Car10" VALUES ('-');
INSERT INTO "Car11" VALUES ('-');
