// SPDX-License-Identifier: MIT
#include "gallery/frmLinkedPictures.h"
#include "ui_frmLinkedPictures.h"

#include "catalogue/PictureCards.h"
#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "gallery/LinkedPicturesKeys.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ButtonMenu.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphLinks.h"
#include "story/PictureWindows.h"

#include <QContextMenuEvent>

#include <algorithm>

namespace {

constexpr QSize linkedPicturesSize(900, 620);

} // namespace

frmLinkedPictures::frmLinkedPictures(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmLinkedPictures>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    KeepWindowSize(this, linkedPicturesSize);
    ConnectControls();
    ConnectEntries();
    new WindowKeys(this, LinkedPicturesKeys());
    new UndoWindow(this, [this] {
        ui_->sheet->MarksChanged();
        Form_Load();
    });
}

frmLinkedPictures::~frmLinkedPictures() = default;

void frmLinkedPictures::ConnectControls()
{
    using Form = frmLinkedPictures;
    ConnectButtons<Form>(this, {
                                   {ui_->cmdEarlier, "move-up", &Form::cmdEarlier_Click},
                                   {ui_->cmdLater, "move-down", &Form::cmdLater_Click},
                                   {ui_->cmdTakeOut, "delete", &Form::cmdTakeOut_Click},
                                   {ui_->cmdTakeOutLost, "", &Form::cmdTakeOutLost_Click},
                                   {ui_->cmdFindPictures, "link", &Form::cmdFindPictures_Click},
                                   {ui_->cmdExit, "exit", &Form::cmdExit_Click},
                               });
    connect(ui_->sheet, &ContactSheet::SelectionChanged, this, Guarded(this, &Form::RefreshState));
    connect(ui_->sheet, &ContactSheet::CurrentChanged, this, Guarded(this, &Form::RefreshState));
    connect(ui_->sheet, &ContactSheet::Dropped, this,
            [this](int before) { RunGuarded([&] { MoveChosen(before); }); });
}

// The entries that keys trigger do what the buttons do.
void frmLinkedPictures::ConnectEntries()
{
    connect(ui_->mnuEarlier, &QAction::triggered, ui_->cmdEarlier, &QPushButton::click);
    connect(ui_->mnuLater, &QAction::triggered, ui_->cmdLater, &QPushButton::click);
    connect(ui_->mnuTakeOut, &QAction::triggered, ui_->cmdTakeOut, &QPushButton::click);
    connect(ui_->mnuFindPictures, &QAction::triggered, ui_->cmdFindPictures, &QPushButton::click);
    connect(ui_->mnuKeys, &QAction::triggered, this,
            Guarded(this, &frmLinkedPictures::mnuKeys_Click));
}

void frmLinkedPictures::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { Form_Load(); });
    ui_->sheet->setFocus();
}

void frmLinkedPictures::contextMenuEvent(QContextMenuEvent* event)
{
    ButtonMenu menu(this);
    menu.AddButtons({ui_->cmdEarlier, ui_->cmdLater, ui_->cmdTakeOut});
    menu.AddButtons({ui_->cmdFindPictures, ui_->cmdExit});
    menu.exec(event->globalPos());
}

void frmLinkedPictures::Form_Load()
{
    const QStringList links = LinksInOrder(CurrentParagraph);
    const std::vector<qint32> ids = PictureIdsOf(links);
    files_.clear();
    lost_.clear();
    std::vector<qint32> shown;
    for (qsizetype i = 0; i < links.size(); ++i) {
        const qint32 id = ids[std::size_t(i)];
        (id != 0 ? files_ : lost_) += links[i];
        if (id != 0)
            shown.push_back(id);
    }
    ui_->sheet->ShowPictures(shown);
    if (ui_->sheet->GetCurrent() == 0 && !shown.empty())
        ui_->sheet->GoTo(shown.front());
    RefreshState();
}

void frmLinkedPictures::RefreshState()
{
    const QString readOnly =
        GeneralModule::IsAlbumReadOnly() ? GeneralModule::ReadOnlyReason() : QString();
    const int count = int(files_.size());
    ui_->lblLinked->setText(count > 0 ? tr("%n linked pictures, which the paragraph shows first, "
                                           "in this order",
                                           nullptr, count)
                                      : tr("No picture is linked to this paragraph."));
    ui_->lblLost->setText(tr("%n linked files are not in the album.", nullptr, int(lost_.size())));
    ui_->lost->setVisible(!lost_.isEmpty());
    ui_->sheet->AllowDragging(readOnly.isEmpty());
    const std::vector<int> rows = ChosenRows();
    // Those that are not side by side come together.
    const bool isApart = !rows.empty() && rows.back() - rows.front() >= int(rows.size());
    OfferUnless(*ui_->cmdEarlier, !rows.empty() && (rows.front() > 0 || isApart), readOnly);
    OfferUnless(*ui_->cmdLater, !rows.empty() && (rows.back() < count - 1 || isApart), readOnly);
    OfferUnless(*ui_->cmdTakeOut, !rows.empty(), readOnly);
    OfferUnless(*ui_->cmdTakeOutLost, true, readOnly);
    OfferUnless(*ui_->cmdFindPictures, true, readOnly);
}

std::vector<int> frmLinkedPictures::ChosenRows() const
{
    std::vector<int> rows;
    const std::vector<qint32>& pictures = ui_->sheet->GetPictures();
    std::vector<qint32> chosen = ui_->sheet->GetSelected();
    if (chosen.empty())
        chosen = {ui_->sheet->GetCurrent()};
    std::ranges::sort(chosen);
    for (int row = 0; row < int(pictures.size()); ++row) {
        if (std::ranges::binary_search(chosen, pictures[std::size_t(row)]))
            rows.push_back(row);
    }
    return rows;
}

QStringList frmLinkedPictures::ChosenFiles() const
{
    QStringList files;
    for (const int row : ChosenRows())
        files += files_[row];
    return files;
}

void frmLinkedPictures::MoveChosen(int before)
{
    const QStringList chosen = ChosenFiles();
    MoveLinks(CurrentParagraph, {chosen.begin(), chosen.end()}, files_.value(before));
    Form_Load();
}

void frmLinkedPictures::cmdEarlier_Click()
{
    const std::vector<int> rows = ChosenRows();
    if (!rows.empty())
        MoveChosen(std::max(0, rows.front() - 1));
}

void frmLinkedPictures::cmdLater_Click()
{
    const std::vector<int> rows = ChosenRows();
    if (!rows.empty())
        MoveChosen(rows.back() + 2);
}

void frmLinkedPictures::cmdTakeOut_Click()
{
    SetLinked(CurrentParagraph, ChosenFiles(), false);
    Form_Load();
}

void frmLinkedPictures::cmdTakeOutLost_Click()
{
    SetLinked(CurrentParagraph, lost_, false);
    Form_Load();
}

void frmLinkedPictures::cmdFindPictures_Click()
{
    FindRequest request;
    request.parent = this;
    request.paragraph = CurrentParagraph;
    FindPictures(request);
    ui_->sheet->MarksChanged();
    Form_Load();
}

void frmLinkedPictures::cmdExit_Click()
{
    reject();
}

void frmLinkedPictures::mnuKeys_Click()
{
    KeySheet({DescribeKeys(LinkedPicturesKeys())}, this).exec();
}
