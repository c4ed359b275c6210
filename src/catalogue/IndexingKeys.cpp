// SPDX-License-Identifier: MIT
#include "catalogue/IndexingKeys.h"

#include <QCoreApplication>

namespace {

class IndexingKeys
{
    Q_DECLARE_TR_FUNCTIONS(IndexingKeys)
};

} // namespace

KeySection IndexingKeySection()
{
    return {
        IndexingKeys::tr("Indexing"),
        {{KeyNames({QKeySequence(Qt::Key_Return)}), IndexingKeys::tr("Next picture, from a field")},
         {KeyNames({QKeySequence(Qt::ALT | Qt::Key_N)}), IndexingKeys::tr("Next picture")},
         {KeyNames({QKeySequence(Qt::ALT | Qt::Key_P)}), IndexingKeys::tr("Previous picture")},
         {KeyNames({QKeySequence(Qt::CTRL | Qt::Key_D)}),
          IndexingKeys::tr("The values of the picture described last")},
         {KeyNames({QKeySequence(Qt::CTRL | Qt::Key_Space)}),
          IndexingKeys::tr("The same for the field you are in")},
         {KeyNames({QKeySequence(Qt::Key_Escape)}), IndexingKeys::tr("Save and leave")},
         {KeyNames({QKeySequence(Qt::Key_Q)}),
          IndexingKeys::tr("Save and leave, outside the fields")}}};
}
