// SPDX-License-Identifier: MIT
#pragma once

#include "core/OldAlbumReport.h"
#include "platform/data/Database.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"
#include "platform/data/WriteBatch.h"
#include "platform/oldalbum/OldAlbumFile.h"

#include <memory>
#include <optional>

namespace GeneralModule {

// Writes the rows of one table of a former album into the table of that name in a new album, in
// place of what the template holds there. Identifiers stay as they are. Where the new album allows
// a text or an identifier only once and the old one has it twice, nothing is lost:
// - a chapter or parameter gets a number behind its name;
// - a row whose identifier is missing or taken gets a new one, above all others;
// - a value of a characteristic's table that is there already is the same value.
// What was changed or could not be read goes into the report.
class OldAlbumTable : public OldTableVisitor
{
public:
    OldAlbumTable(std::shared_ptr<Database> database, const QString& table, OldAlbumReport& report);

    // They throw DatabaseError.
    void BeginTable(const QStringList& fields, qint64 lastNumber) override;
    void TakeRow(const std::vector<OldValue>& values) override;
    // Call when the table was read, also in part. Returns the rows that the new table holds.
    qint64 Finish();

private:
    using Row = std::vector<FieldValue>;

    void PrepareInsert();
    void ReportFields(const QStringList& fields);
    FieldValue Convert(int field, const OldValue& value);
    FieldValue ToNumber(int field, const OldValue& value);
    QString NameOfRow(const std::vector<OldValue>& values) const;
    void ReportValues(const std::vector<OldValue>& values);

    bool IdentifierIsTaken(const FieldValue& identifier);
    bool TryInsert(const Row& row);
    void Insert(const Row& row);
    void InsertUnderAnotherName(Row row);
    void InsertSetAside();
    void SetLastNumber();

    std::shared_ptr<Database> database_;
    QString table_;
    OldAlbumReport& report_;
    TableLayout layout_;
    std::vector<int> sources_; // old field of each new one, -1 for none
    int uniqueName_ = -1;      // field that may hold a text only once, -1 for none
    int pictureFile_ = -1;     // field of picture paths
    std::optional<WriteBatch> batch_;
    Statement insert_;
    std::vector<int> inserted_; // fields in the order of the statement's parameters
    Statement find_;
    std::vector<Row> setAside_;
    qint64 lastNumber_ = 0;
    qint64 highest_ = 0; // identifier
    qint64 rows_ = 0;    // taken from the old album
    int suffix_ = 1;     // the last one that was put behind a name
};

} // namespace GeneralModule
