// SPDX-License-Identifier: MIT
#include "catalogue/frmEditLabels.h"
#include "ui_frmEditLabels.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/Parameters.h"
#include "platform/data/WriteBatch.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(760, 210);

} // namespace

frmEditLabels::frmEditLabels(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmEditLabels>())
{
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ui_->cmdExit->setIcon(ThemedIcon(QStringLiteral("exit")));
    connect(ui_->cmdExit, &QPushButton::clicked, this,
            Guarded(this, &frmEditLabels::cmdExit_Click));
    RunGuarded([this] { Form_Load(); });
}

frmEditLabels::~frmEditLabels() = default;

QLineEdit* frmEditLabels::txtCaract(int group) const
{
    return findChild<QLineEdit*>(QStringLiteral("txtCaract_%1").arg(group));
}

QLineEdit* frmEditLabels::txtCar(int column) const
{
    return findChild<QLineEdit*>(QStringLiteral("txtCar_%1").arg(column));
}

void frmEditLabels::Form_Load()
{
    for (int group = 0; group < groupCount; ++group)
        txtCaract(group)->setText(CaractLabel(group));
    for (const int column : labelledColumns)
        txtCar(column)->setText(ColumnLabel(column));
    isLoaded_ = true;
}

void frmEditLabels::cmdExit_Click()
{
    // Labels that could not be read must not be overwritten with nothing.
    if (!isLoaded_) {
        close();
        return;
    }
    WriteBatch batch(AlbumDatabase);
    for (int group = 0; group < groupCount; ++group)
        SetCaractLabel(group, txtCaract(group)->text());
    for (const int column : labelledColumns)
        SetColumnLabel(column, txtCar(column)->text());
    batch.Finish();
    close();
}
