// SPDX-License-Identifier: MIT
#pragma once

#include "core/oldalbum/OldAlbumReport.h"
#include "platform/data/Database.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"
#include "platform/data/WriteBatch.h"
#include "platform/oldalbum/OldAlbumFile.h"

#include <memory>
#include <optional>

namespace GeneralModule {

// Writes the rows of one table of a former album into the table of that name in a new album,
// replacing the template's rows. Identifiers stay the same. If the old table has a text or an
// identifier twice that the new one allows only once, nothing is lost:
// - a chapter or parameter gets a number after its name;
// - a row whose identifier is missing or taken gets a new one, above all others where it can;
// - a value of a characteristic's table that is there already is the same value.
// Fields and whole tables of the user's own, which the template lacks, are added to the new album
// as texts. What was changed or could not be read goes into the report.
class OldAlbumTable : public OldTableVisitor
{
public:
    enum class Kind { OfAlbums, OfUser };

    OldAlbumTable(std::shared_ptr<Database> database, const QString& table, OldAlbumReport& report,
                  Kind kind = Kind::OfAlbums);

    // They throw DatabaseError.
    void BeginTable(const QStringList& fields, qint64 lastNumber) override;
    void TakeRow(const std::vector<OldValue>& values) override;
    // Call when the table has been read, even in part. Returns how many rows the new table has.
    qint64 Finish();

private:
    using Row = std::vector<FieldValue>;

    bool MakeTable(const QString& firstField);
    void MatchFields(const QStringList& fields);
    void AddField(const QString& field, int source);
    void ReportMissingFields();
    void PrepareInsert();
    const TableLayout::Field& Field(int field) const { return layout_->At(field); }
    QByteArray QuotedTable() const { return QuotedName(layout_->GetTable()); }
    const OldValue& ValueOf(int field, const std::vector<OldValue>& values) const;
    FieldValue ToNumber(int field, const OldValue& value) const;
    Row ToRow(const std::vector<OldValue>& values) const;
    QString NameOfRow(const std::vector<OldValue>& values) const;
    void ReportValues(const std::vector<OldValue>& values);
    void ReportOwnFields();
    void ReportRefusedRow();
    void InsertRow(const std::vector<OldValue>& values);
    void NotePicture(QByteArrayView path);

    bool IdentifierIsTaken(const FieldValue& identifier);
    bool RunInsert();
    bool TryInsert(const Row& row);
    bool TryInsert(const std::vector<OldValue>& values);
    void InsertNumbered(const Row& row);
    void InsertUnderAnotherName(Row row);
    void InsertSetAside();
    void SetLastNumber();

    std::shared_ptr<Database> database_;
    QString table_;
    OldAlbumReport& report_;
    std::optional<TableLayout> layout_; // none while a table of the user's own is not made
    std::vector<int> sources_;          // old field of each new one, -1 for none
    int ownFields_ = 0;                 // number of the first field of the user's own
    std::vector<qint64> damaged_;       // values of each of these that are not whole
    int uniqueName_ = -1;               // field that may hold a text only once, -1 for none
    int pictureFile_ = -1;              // field of picture paths
    std::optional<WriteBatch> batch_;
    Statement insert_;
    std::vector<int> inserted_; // fields in the order of the statement's parameters
    Statement find_;
    std::vector<Row> setAside_;
    QByteArray lastFolder_; // of a picture with another system's path
    qint64 lastNumber_ = 0;
    qint64 highest_ = 0; // identifier
    qint64 rows_ = 0;    // taken from the old album
    int suffix_ = 1;     // the last one added to a name
};

} // namespace GeneralModule
