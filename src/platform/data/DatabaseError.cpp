// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseError.h"

DatabaseError::DatabaseError(Number number, const QString& description)
    : number_(number),
      description_(description),
      what_(std::to_string(int(number)) + ' ' + description.toStdString())
{
}

void ThrowRecordDeleted()
{
    throw DatabaseError(DatabaseError::RecordDeleted,
                        DatabaseError::tr("The record has been deleted."));
}
