// SPDX-License-Identifier: MIT
#include "gallery/frmFindPictures.h"
#include "ui_frmFindPictures.h"

#include "catalogue/MovedPictures.h"
#include "catalogue/PictureCards.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmEditImage.h"
#include "catalogue/frmTakeFromFiles.h"
#include "core/Album.h"
#include "core/LocalCopy.h"
#include "core/PictureList.h"
#include "gallery/frmDescribePictures.h"
#include "gallery/frmPlaceParagraph.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/ButtonMenu.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphInsertion.h"
#include "story/ParagraphLinks.h"
#include "story/frmEditParagraph.h"

#include <QCompleter>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize proposedSize(1120, 780);

// The files of pictures, each read when it is the next one. Those that are gone are passed over.
class UpcomingFiles
{
public:
    explicit UpcomingFiles(std::vector<qint32> pictures) : pictures_(std::move(pictures)) {}

    // Empty when none is left.
    QString Foresee()
    {
        for (; next_ < pictures_.size(); ++next_) {
            const QString file = ReadPictureCards({&pictures_[next_], 1}).front().file;
            if (!file.isEmpty())
                return file;
        }
        return {};
    }
    int Count() { return Foresee().isEmpty() ? 0 : int(pictures_.size() - next_); }
    QString Take()
    {
        const QString file = Foresee();
        ++next_;
        return file;
    }

private:
    std::vector<qint32> pictures_;
    std::size_t next_ = 0;
};

} // namespace

frmFindPictures::frmFindPictures(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmFindPictures>()), run_(new SearchRun(this))
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    ui_->lblFailure->hide();
    KeepWindowSize(this, proposedSize);
    ConnectControls();
}

frmFindPictures::~frmFindPictures() = default;

void frmFindPictures::ConnectControls()
{
    using Form = frmFindPictures;
    ConnectButtons<Form>(
        this, {
                  {ui_->cmdReadPictures, "read-chapter", &Form::cmdReadPictures_Click},
                  {ui_->cmdDescribe, "index-pictures", &Form::cmdDescribe_Click},
                  {ui_->cmdDescribeTogether, "", &Form::cmdDescribeTogether_Click},
                  {ui_->cmdLink, "link", &Form::cmdLink_Click},
                  {ui_->cmdTakeFromFiles, "load-pictures", &Form::cmdTakeFromFiles_Click},
                  {ui_->cmdMakeParagraph, "chapter-create", &Form::cmdMakeParagraph_Click},
                  {ui_->cmdExit, "exit", &Form::cmdExit_Click},
              });
    connect(ui_->txtWords, &QLineEdit::textChanged, this, &Form::TermsChanged);
    connect(ui_->txtFolder, &QLineEdit::textChanged, this, &Form::TermsChanged);
    connect(ui_->filterPanel, &FilterPanel::ValuesChanged, this, &Form::TermsChanged);
    connect(ui_->chkNotIndexed, &QCheckBox::toggled, this, &Form::TermsChanged);
    connect(ui_->chkMissing, &QCheckBox::toggled, this, &Form::TermsChanged);
    connect(run_, &SearchRun::Found, this, &Form::ShowFound);
    connect(run_, &SearchRun::Failed, this, &Form::ShowFailure);
    connect(ui_->sheet, &ContactSheet::SelectionChanged, this, Guarded(this, &Form::RefreshState));
    connect(ui_->sheet, &ContactSheet::CurrentChanged, this, Guarded(this, &Form::RefreshState));
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, ui_->txtWords, [this] {
        ui_->txtWords->setFocus();
        ui_->txtWords->selectAll();
    });
    new UndoWindow(this, [this] {
        linked_ = CurrentParagraph > 0 ? LinkedFiles(CurrentParagraph) : QSet<QString>();
        SearchAgain();
    });
    ui_->txtWords->installEventFilter(this);
    ui_->txtFolder->installEventFilter(this);
}

void frmFindPictures::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { Form_Load(); });
    ui_->txtWords->setFocus();
}

void frmFindPictures::Form_Load()
{
    linked_ = CurrentParagraph > 0 ? LinkedFiles(CurrentParagraph) : QSet<QString>();
    ui_->cmdReadPictures->setVisible(bool(ReadPictures));
    ui_->cmdLink->setVisible(CurrentParagraph > 0);
    ui_->filterPanel->ShowLabels();
    ui_->filterPanel->SetValues(Values);
    ui_->sheet->SetLinked([this](const QString& file) { return linked_.contains(file); });
    const QSignalBlocker quiet(ui_->chkMissing);
    ui_->chkMissing->setChecked(IsMissing);
    ui_->filterPanel->SetOtherTerms(GetTerms());
    run_->BeginAtOnce(GetTerms());
    RefreshState();
}

SearchTerms frmFindPictures::GetTerms() const
{
    return {.query = {.values = ui_->filterPanel->GetValues()},
            .words = ui_->txtWords->text(),
            .folder = ui_->txtFolder->text(),
            .isNotIndexed = ui_->chkNotIndexed->isChecked(),
            .isMissing = ui_->chkMissing->isChecked()};
}

void frmFindPictures::TermsChanged()
{
    const SearchTerms terms = GetTerms();
    ui_->filterPanel->SetOtherTerms(terms);
    run_->Begin(terms);
}

// After something was done with the pictures.
void frmFindPictures::SearchAgain()
{
    ui_->sheet->MarksChanged();
    run_->BeginAtOnce(GetTerms());
    RefreshState();
}

void frmFindPictures::ShowFound(const std::vector<qint32>& pictures, bool isComplete)
{
    ui_->lblFailure->hide();
    RunGuarded([&] {
        ui_->sheet->ShowPictures(pictures);
        if (isComplete)
            ui_->filterPanel->ShowCount(int(pictures.size()));
        RefreshState();
    });
}

void frmFindPictures::ShowFailure(const QString& reason)
{
    ui_->lblFailure->setText(reason);
    ui_->lblFailure->show();
    RunGuarded([&] {
        ui_->sheet->ShowPictures({});
        RefreshState();
    });
}

// The selected pictures, else the current one.
QStringList frmFindPictures::ChosenFiles() const
{
    std::vector<qint32> ids = ui_->sheet->GetSelected();
    if (ids.empty() && ui_->sheet->GetCurrent() != 0)
        ids.push_back(ui_->sheet->GetCurrent());
    QStringList files;
    for (const PictureCard& card : ReadPictureCards(ids)) {
        if (!card.file.isEmpty())
            files += card.file;
    }
    return files;
}

bool frmFindPictures::AreAllLinked(const QStringList& files) const
{
    return std::all_of(files.begin(), files.end(),
                       [this](const QString& file) { return linked_.contains(file); });
}

void frmFindPictures::RefreshState()
{
    const bool hasPictures = !ui_->sheet->GetPictures().empty();
    const bool hasChosen = ui_->sheet->GetCurrent() != 0 || !ui_->sheet->GetSelected().empty();
    ui_->cmdReadPictures->setEnabled(hasPictures);
    const QString reason =
        GeneralModule::IsAlbumReadOnly() ? GeneralModule::ReadOnlyReason() : QString();
    OfferUnless(*ui_->cmdDescribe, hasChosen, reason);
    OfferUnless(*ui_->cmdDescribeTogether, hasPictures, reason);
    OfferUnless(*ui_->cmdLink, hasChosen, reason);
    OfferUnless(*ui_->cmdTakeFromFiles, hasPictures, reason);
    OfferUnless(*ui_->cmdMakeParagraph, true, reason);
    if (CurrentParagraph == 0 || !hasChosen)
        return;
    // More than are linked are not looked up.
    const bool areLinked =
        int(ui_->sheet->GetSelected().size()) <= linked_.size() && AreAllLinked(ChosenFiles());
    ui_->cmdLink->setText(areLinked ? tr("Unlink from Paragraph") : tr("Link to Paragraph"));
}

// Down goes on to the pictures, and Return too; folders are offered once somebody wants one.
bool frmFindPictures::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool isList = watched == ui_->txtFolder && key == Qt::Key_Down;
        if (!isList && (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter)) {
            GoToSheet();
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn && watched == ui_->txtFolder &&
        !ui_->txtFolder->completer())
        RunGuarded([this] {
            const BusyPointer busy;
            auto* completer = new QCompleter(PictureFolders(), ui_->txtFolder);
            completer->setCaseSensitivity(Qt::CaseInsensitive);
            completer->setFilterMode(Qt::MatchContains);
            ui_->txtFolder->setCompleter(completer);
        });
    return QDialog::eventFilter(watched, event);
}

// Fields have menus of their own, and a right click into a filter means something else.
void frmFindPictures::contextMenuEvent(QContextMenuEvent* event)
{
    const QWidget* below = childAt(mapFromGlobal(event->globalPos()));
    if (below && ui_->filterPanel->isAncestorOf(below))
        return;
    ButtonMenu menu(this);
    menu.AddButtons({ui_->cmdReadPictures, ui_->cmdDescribe, ui_->cmdDescribeTogether});
    menu.AddButtons({ui_->cmdLink, ui_->cmdMakeParagraph});
    menu.AddButtons({ui_->cmdExit});
    menu.exec(event->globalPos());
}

void frmFindPictures::GoToSheet()
{
    ui_->sheet->setFocus();
    const std::vector<qint32>& pictures = ui_->sheet->GetPictures();
    if (ui_->sheet->GetCurrent() == 0 && !pictures.empty())
        ui_->sheet->GoTo(pictures.front());
}

void frmFindPictures::cmdReadPictures_Click()
{
    std::vector<qint32> pictures = ui_->sheet->GetSelected();
    if (pictures.size() <= 1)
        pictures = ui_->sheet->GetPictures();
    pictures.resize(std::min<std::size_t>(pictures.size(), GeneralModule::maxListed));
    QStringList files;
    for (const PictureCard& card : ReadPictureCards(pictures))
        files += card.file;
    ReadPictures(this, files);
    SearchAgain();
}

// Several chosen ones, else the current one and those after it.
void frmFindPictures::cmdDescribe_Click()
{
    std::vector<qint32> pictures = ui_->sheet->GetSelected();
    if (pictures.size() <= 1) {
        const std::vector<qint32>& all = ui_->sheet->GetPictures();
        pictures.assign(std::find(all.begin(), all.end(), ui_->sheet->GetCurrent()), all.end());
    }
    UpcomingFiles upcoming(std::move(pictures));
    frmEditImage window(this);
    window.CurrentImage = upcoming.Take();
    if (window.CurrentImage.isEmpty())
        return;
    window.CountUpcoming = [&] { return upcoming.Count(); };
    window.NextPicture = [&] { return upcoming.Take(); };
    window.ForeseeNextPicture = [&] {
        const QString next = upcoming.Foresee();
        return next.isEmpty() ? QString() : GeneralModule::FindPictureFile(next);
    };
    window.exec();
    SearchAgain();
}

void frmFindPictures::cmdDescribeTogether_Click()
{
    frmDescribePictures window(this);
    window.Pictures = ui_->sheet->GetSelected();
    if (window.Pictures.size() <= 1)
        window.Pictures = ui_->sheet->GetPictures();
    window.exec();
    SearchAgain();
}

void frmFindPictures::cmdLink_Click()
{
    const QStringList files = ChosenFiles();
    SetLinked(CurrentParagraph, files, !AreAllLinked(files));
    linked_ = LinkedFiles(CurrentParagraph);
    ui_->sheet->MarksChanged();
    RefreshState();
}

// Several chosen ones, else all that were found.
void frmFindPictures::cmdTakeFromFiles_Click()
{
    frmTakeFromFiles window(this);
    window.Pictures = ui_->sheet->GetSelected();
    if (window.Pictures.size() <= 1)
        window.Pictures = ui_->sheet->GetPictures();
    if (window.exec() == QDialog::Accepted)
        SearchAgain();
}

void frmFindPictures::cmdMakeParagraph_Click()
{
    frmPlaceParagraph placing(this);
    if (placing.exec() != QDialog::Accepted)
        return;
    const ParagraphPlace place =
        InsertParagraph(placing.Chapter, placing.After, ui_->filterPanel->GetValues());
    frmEditParagraph editor(this);
    editor.CurrentChapter = place.chapter;
    editor.CurrentParagraph = place.paragraph;
    editor.exec();
    SearchAgain();
}

void frmFindPictures::cmdExit_Click()
{
    reject();
}
