// SPDX-License-Identifier: MIT
#include "catalogue/frmEditLabels.h"
#include "ui_frmEditLabels.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/EditConflict.h"
#include "core/Parameters.h"
#include "platform/data/WriteBatch.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <algorithm>
#include <iterator>

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

QString frmEditLabels::Label::Read() const
{
    return group >= 0 ? CaractLabel(group) : ColumnLabel(column);
}

void frmEditLabels::Label::Write() const
{
    if (group >= 0)
        SetCaractLabel(group, box->text());
    else
        SetColumnLabel(column, box->text());
}

void frmEditLabels::Form_Load()
{
    for (int group = 0; group < groupCount; ++group)
        Load({.box = txtCaract(group), .loaded = {}, .shown = {}, .group = group});
    for (const int column : labelledColumns)
        Load({.box = txtCar(column), .loaded = {}, .shown = {}, .column = column});
}

// A label that could not be read is not in the list, and so is never written.
void frmEditLabels::Load(Label label)
{
    label.loaded = label.Read();
    label.box->setText(label.loaded);
    label.shown = label.box->text();
    labels_.push_back(label);
}

std::vector<frmEditLabels::Label> frmEditLabels::EditedLabels() const
{
    std::vector<Label> edited;
    std::copy_if(labels_.begin(), labels_.end(), std::back_inserter(edited),
                 [](const Label& label) { return label.box->text() != label.shown; });
    return edited;
}

bool frmEditLabels::SettleConflicts(std::vector<Label>& edited)
{
    const auto conflicts = [](const Label& label) {
        return IsConflict(label.loaded, label.box->text(), label.Read());
    };
    QStringList mine;
    QStringList stored;
    for (const Label& label : edited) {
        if (conflicts(label)) {
            mine += label.box->text();
            stored += label.Read();
        }
    }
    if (mine.isEmpty())
        return true;
    const ConflictChoice choice =
        AskAboutConflict(tr("One of these labels"), mine.join(u'\n'), stored.join(u'\n'));
    if (choice == ConflictChoice::TakeStored)
        edited.erase(std::remove_if(edited.begin(), edited.end(), conflicts), edited.end());
    return choice != ConflictChoice::Stay;
}

void frmEditLabels::cmdExit_Click()
{
    std::vector<Label> edited = EditedLabels();
    if (!SettleConflicts(edited))
        return;
    if (!edited.empty()) {
        WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
        for (const Label& label : edited)
            label.Write();
        batch.Finish();
    }
    close();
}
