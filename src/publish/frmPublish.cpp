// SPDX-License-Identifier: MIT
#include "publish/frmPublish.h"
#include "ui_frmPublish.h"

#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "core/Settings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/shell/StayAwake.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/TickDelegate.h"
#include "platform/widgets/WindowSize.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QUrl>

#include <array>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(720, 640);

// The entries of the list boxes, in their order.
constexpr std::array<int, 4> webSizes{1280, 1920, 2560, 3840}; // pixels
constexpr int proposedWebEntry = 1;
constexpr std::array<int, 3> bookResolutions{0, 300, 150};     // dots per inch, 0: as they are
constexpr std::array<int, 4> travelSizes{0, 4096, 2048, 1024}; // pixels, 0: as they are
constexpr std::array<QPageSize::PageSizeId, 3> papers{QPageSize::A4, QPageSize::A5,
                                                      QPageSize::Letter};

struct KindOfPublication
{
    QString key;    // in the settings
    QString ending; // of the file's name; empty for a folder
};

KindOfPublication KindOf(PublishAs as)
{
    switch (as) {
    case PublishAs::Pages:
        return {QStringLiteral("Pages"), {}};
    case PublishAs::SinglePage:
        return {QStringLiteral("Page"), QStringLiteral("html")};
    case PublishAs::Book:
        return {QStringLiteral("Book"), QStringLiteral("pdf")};
    case PublishAs::Album:
        break;
    }
    return {QStringLiteral("Album"), {}};
}

// Settings of one album; its path need not be readable there.
QString SettingsOfAlbum()
{
    return QStringLiteral("Publish-") +
           QString::fromLatin1(
               QCryptographicHash::hash(OpenAlbumPath().toUtf8(), QCryptographicHash::Sha1)
                   .toHex()
                   .first(16));
}

QString NameOfAlbum()
{
    return QFileInfo(OpenAlbumPath()).completeBaseName();
}

} // namespace

frmPublish::frmPublish(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmPublish>())
{
    using Form = frmPublish;
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ui_->spnMost->setValue(proposedMostPictures);
    ui_->cboSize->setCurrentIndex(proposedWebEntry);
    ui_->txtTitle->setText(NameOfAlbum());
    ui_->treChapters->setItemDelegate(new TickDelegate(ui_->treChapters));
    FillChapters();
    ConnectButtons<Form>(this, {{ui_->cmdChoose, "", &Form::cmdChoose_Click},
                                {ui_->cmdPublish, "", &Form::cmdPublish_Click},
                                {ui_->cmdShow, "preview", &Form::cmdShow_Click},
                                {ui_->cmdExit, "exit", &Form::cmdExit_Click}});
    new UndoWindow(this, [this] { FillChapters(); });
    for (QRadioButton* kind : {ui_->optPages, ui_->optSinglePage, ui_->optBook, ui_->optAlbum})
        connect(kind, &QRadioButton::toggled, this, Guarded(this, &Form::ShowKind));
    const QString last = GetUserSetting(SettingsOfAlbum(), QStringLiteral("As"));
    if (QRadioButton* kind = last.isEmpty() ? nullptr : findChild<QRadioButton*>(last))
        kind->setChecked(true);
    ShowKind();
}

frmPublish::~frmPublish() = default;

void frmPublish::FillChapters()
{
    const std::vector<Chapter> chapters = IsAlbumOpen() ? Chapters() : std::vector<Chapter>();
    ui_->treChapters->clear();
    for (const Chapter& chapter : chapters) {
        auto* item = new QTreeWidgetItem(ui_->treChapters);
        item->setText(0, chapter.title);
        item->setCheckState(0, Qt::Checked);
    }
    ui_->treChapters->setCurrentItem(ui_->treChapters->topLevelItem(0));
}

PublishAs frmPublish::GetKind() const
{
    if (ui_->optSinglePage->isChecked())
        return PublishAs::SinglePage;
    if (ui_->optBook->isChecked())
        return PublishAs::Book;
    return ui_->optAlbum->isChecked() ? PublishAs::Album : PublishAs::Pages;
}

void frmPublish::ShowKind()
{
    const PublishAs kind = GetKind();
    const bool isStory = kind != PublishAs::Album;
    const auto show = [this](QWidget* field, bool isVisible) {
        ui_->options->setRowVisible(field, isVisible);
    };
    ui_->treChapters->setEnabled(isStory);
    show(ui_->txtTitle, isStory);
    show(ui_->spnMost, isStory);
    show(ui_->cboSize, kind == PublishAs::Pages);
    show(ui_->cboPaper, kind == PublishAs::Book);
    show(ui_->cboResolution, kind == PublishAs::Book);
    show(ui_->cboWhich, kind == PublishAs::Album);
    show(ui_->cboScale, kind == PublishAs::Album);
    ProposePlace();
    ui_->lblStep->clear();
    ui_->txtReport->clear();
    published_.clear();
    ui_->cmdShow->setEnabled(false);
}

// Where it was published last, else beside the user's other documents.
void frmPublish::ProposePlace()
{
    const KindOfPublication kind = KindOf(GetKind());
    QString place = GetUserSetting(SettingsOfAlbum(), kind.key);
    if (place.isEmpty()) {
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString name = GetKind() == PublishAs::Album ? tr("%1 with pictures") : tr("%1");
        place = documents + u'/' + name.arg(NameOfAlbum()) +
                (kind.ending.isEmpty() ? QString() : u'.' + kind.ending);
    }
    ui_->txtPlace->setText(QDir::toNativeSeparators(place));
}

QStringList frmPublish::TickedChapters() const
{
    QStringList ticked;
    for (int row = 0; row < ui_->treChapters->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = ui_->treChapters->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            ticked += item->text(0);
    }
    return ticked;
}

Publication frmPublish::GetPublication() const
{
    Publication publication;
    publication.as = GetKind();
    const QString typed = QDir::fromNativeSeparators(ui_->txtPlace->text().trimmed());
    const QString ending = KindOf(publication.as).ending;
    publication.place = QDir::cleanPath(QDir::home().absoluteFilePath(typed));
    if (!ending.isEmpty() && QFileInfo(publication.place).suffix().toLower() != ending)
        publication.place += u'.' + ending;
    publication.story = {ui_->txtTitle->text().trimmed(), TickedChapters(), ui_->spnMost->value()};
    publication.pages.size = webSizes[std::size_t(ui_->cboSize->currentIndex())];
    publication.book = {papers[std::size_t(ui_->cboPaper->currentIndex() / 2)],
                        ui_->cboPaper->currentIndex() % 2 == 1,
                        bookResolutions[std::size_t(ui_->cboResolution->currentIndex())]};
    publication.travel = {ui_->cboWhich->currentIndex() == 1,
                          travelSizes[std::size_t(ui_->cboScale->currentIndex())]};
    return publication;
}

// A file that was published from here before may be replaced; another one when the user agrees.
bool frmPublish::MayTakePlace(const QString& place)
{
    if (!QFileInfo::exists(place) || place == agreedPlace_ ||
        GetUserSetting(SettingsOfAlbum(), KindOf(GetKind()).key) == place)
        return true;
    return AgreesTo(tr("%1 exists already. Replace it?").arg(QDir::toNativeSeparators(place)));
}

void frmPublish::cmdChoose_Click()
{
    const Publication publication = GetPublication();
    const QFileInfo place(publication.place);
    const QString ending = KindOf(publication.as).ending;
    Dialogs::FileChoice choice{windowTitle(), {}, place.absolutePath(), place.fileName()};
    QString chosen;
    if (publication.IsFolder()) {
        chosen = Dialogs::Door().AskFolder(choice);
    } else {
        choice.filter = (publication.as == PublishAs::Book ? tr("Book") : tr("Web page")) +
                        QStringLiteral("|*.") + ending;
        chosen = Dialogs::Door().AskSaveFile(choice); // asks about a file that exists
        agreedPlace_ = chosen;
    }
    if (!chosen.isEmpty())
        ui_->txtPlace->setText(QDir::toNativeSeparators(chosen));
}

bool frmPublish::ShowProgress(PublishStage stage, int done, int total)
{
    if (std::exchange(stage_, stage) != stage) {
        ui_->progress->End();
        ui_->progress->Begin(total, true);
    }
    const bool goesOn = ui_->progress->Advance(done);
    if (ui_->progress->HasShown())
        ui_->lblStep->setText(
            stage == PublishStage::Reading
                ? tr("The story is being read...")
                : tr("Picture %1 of %2...")
                      .arg(locale().toString(std::min(done + 1, total)), locale().toString(total)));
    return goesOn;
}

PublishReport frmPublish::Run(const Publication& publication)
{
    const auto end = qScopeGuard([this] { ui_->progress->End(); });
    StayAwake awake;
    awake.Set(true);
    stage_ = PublishStage::Reading;
    ui_->progress->Begin(0, true);
    return Publish(publication, [this](PublishStage stage, int done, int total) {
        return ShowProgress(stage, done, total);
    });
}

void frmPublish::cmdPublish_Click()
{
    const Publication publication = GetPublication();
    if (ui_->txtPlace->text().trimmed().isEmpty())
        return Tell(tr("Please say where to publish it."));
    if (publication.as != PublishAs::Album && publication.story.chapters.isEmpty())
        return Tell(tr("Please tick at least one chapter."));
    if (!publication.IsFolder() && !MayTakePlace(publication.place))
        return;
    ui_->txtReport->clear();
    ui_->cmdShow->setEnabled(false);
    published_.clear();
    try {
        const PublishReport report = Run(publication);
        if (!report.isStopped) {
            SaveUserSetting(SettingsOfAlbum(), KindOf(publication.as).key, publication.place);
            const QRadioButton* kind = nullptr;
            for (const QRadioButton* each : findChildren<QRadioButton*>())
                kind = each->isChecked() ? each : kind;
            SaveUserSetting(SettingsOfAlbum(), QStringLiteral("As"), kind->objectName());
            published_ = publication.place;
        }
        ShowResult(report);
    } catch (const PublishError& error) {
        ui_->lblStep->setText(tr("Nothing was published."));
        Tell(error.GetText(), Dialogs::Icon::Warning);
    } catch (const std::exception&) {
        ui_->lblStep->setText(tr("Nothing was published."));
        throw;
    }
}

void frmPublish::ShowResult(const PublishReport& report)
{
    ui_->lblStep->setText(report.isStopped   ? tr("Stopped.")
                          : report.IsWhole() ? tr("Published.")
                                             : tr("Published, but not all of it; see below."));
    ui_->txtReport->setPlainText(DescribePublishReport(report));
    ui_->cmdShow->setEnabled(!published_.isEmpty());
    if (!published_.isEmpty())
        ui_->cmdShow->setFocus();
}

void frmPublish::cmdShow_Click()
{
    const QString front = published_ + QStringLiteral("/index.html");
    const QString path = QFileInfo::exists(front) ? front : published_;
    if (Show)
        Show(path);
    else
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void frmPublish::cmdExit_Click()
{
    reject();
}
