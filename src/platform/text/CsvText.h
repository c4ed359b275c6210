// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// Tables as text, as RFC 4180 has them: cells between commas, in quotes where they need them.

// One row with its line end.
QString CsvRow(const QStringList& cells);

// Spreadsheets run a cell that begins with =, +, -, @ or their like as a formula. An apostrophe in
// front makes it a text; one that was there gets a second, so that CellText gives back exactly what
// SafeCell got. A "-" alone stays.
QString SafeCell(const QString& text);
QString CellText(const QString& cell);

// Takes a text apart. Rows may end as on any system; cells in quotes may hold line ends. Whether
// commas, semicolons or tabs separate the cells is seen from the first row: spreadsheets write
// what their language asks for.
class CsvReader
{
public:
    explicit CsvReader(QString text);

    // The cells of the next row; false at the end. Empty rows are passed over.
    bool Next(QStringList& cells);
    // The line on which that row began, from 1.
    int GetLine() const { return rowLine_; }
    // Whether the text ends inside quotes, so that the last row cannot be trusted.
    bool IsCutOff() const { return isCutOff_; }

private:
    QString TakeCell();
    bool TakeLineEnd();

    QString text_;
    QChar separator_;
    qsizetype at_ = 0;
    int line_ = 1;
    int rowLine_ = 0;
    bool isCutOff_ = false;
};
