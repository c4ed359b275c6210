// SPDX-License-Identifier: MIT
#include "catalogue/frmEditLabels.h"
#include "ui_frmEditLabels.h"

#include "catalogue/CharacteristicModel.h"
#include "catalogue/UndoWindow.h"
#include "core/EditConflict.h"
#include "core/Parameters.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QMenu>

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
    ui_->cmdPropose->setIcon(ThemedIcon(QStringLiteral("rename")));
    connect(ui_->cmdExit, &QPushButton::clicked, this,
            Guarded(this, &frmEditLabels::cmdExit_Click));
    new UndoWindow(
        this, [this] { ShowAfterUndo(); }, [this] { return SaveLabels(); });
    OfferStarters();
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
        Load(txtCaract(group), CaractParam(group));
    for (const int column : labelledColumns)
        Load(txtCar(column), CarField(column));
}

void frmEditLabels::OfferStarters()
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuPropose"));
    for (const LabelSet& labels : StarterLabels())
        connect(menu->addAction(labels.name), &QAction::triggered, this,
                [this, labels] { Propose(labels); });
    ui_->cmdPropose->setMenu(menu);
}

// What has a name keeps it; Exit keeps the rest.
void frmEditLabels::Propose(const LabelSet& labels)
{
    const auto fill = [](QLineEdit& box, const QString& label) {
        if (box.text().isEmpty())
            box.setText(label);
    };
    for (int group = 0; group < groupCount; ++group)
        fill(*txtCaract(group), labels.groups[std::size_t(group)]);
    for (std::size_t i = 0; i < labelledColumns.size(); ++i)
        fill(*txtCar(labelledColumns[i]), labels.columns[i]);
}

// A label that cannot be read is not added to the list, and so never written.
void frmEditLabels::Load(QLineEdit* box, const QString& parameter)
{
    const QString loaded = GetParam(parameter);
    box->setText(loaded);
    labels_.push_back({box, parameter, loaded, box->text()});
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
        return IsConflict(label.loaded, label.box->text(), GetParam(label.parameter));
    };
    QStringList mine;
    QStringList stored;
    for (const Label& label : edited) {
        if (conflicts(label)) {
            mine += label.box->text();
            stored += GetParam(label.parameter);
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

bool frmEditLabels::SaveLabels()
{
    std::vector<Label> edited = EditedLabels();
    if (!SettleConflicts(edited))
        return false;
    QMap<QString, QString> labels;
    for (const Label& label : edited)
        labels.insert(label.parameter, label.box->text());
    if (!labels.isEmpty()) {
        const UndoStep step(UndoStep::tr("Edit Labels"));
        SetParams(labels);
    }
    return true;
}

void frmEditLabels::ShowAfterUndo()
{
    labels_.clear();
    Form_Load();
}

void frmEditLabels::cmdExit_Click()
{
    if (SaveLabels())
        close();
}
