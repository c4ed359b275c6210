// SPDX-License-Identifier: MIT
#include "gallery/ContactSheet.h"

#include "core/Album.h"
#include "gallery/AlbumThumbnails.h"
#include "gallery/LargeViewing.h"
#include "gallery/SheetDelegate.h"
#include "gallery/SheetDrag.h"
#include "gallery/SheetSelection.h"
#include "platform/dialogs/Guard.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace {

// Of the squares, logical pixels.
constexpr std::array sides{80, 112, 144, 184, 240, 320};
constexpr int usualSide = sides[2];

constexpr std::chrono::milliseconds retryPause(500);

bool IsZoomIn(const QKeyEvent& event)
{
    // Without Shift, where the plus is above the equals sign.
    return event.matches(QKeySequence::ZoomIn) ||
           (event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_Equal);
}

} // namespace

ContactSheet::ContactSheet(QWidget* parent)
    : EvenGrid(parent),
      model_(new SheetModel(this)),
      thumbnails_(new ThumbnailStore(SurroundingsInAlbum([this] { return isVisible(); }), this)),
      delegate_(new SheetDelegate(*model_, *thumbnails_, this)),
      large_(new LargeViewing(*this, *model_)),
      drag_(new SheetDrag(this))
{
    SetUpView();
    SetUpWork();
    SetSide(usualSide);
}

std::optional<ContactSheet::CursorAction> ContactSheet::ExtendingActionOf(const QKeyEvent& key)
{
    static const QHash<int, CursorAction> actions{
        {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},        {Qt::Key_Left, MoveLeft},
        {Qt::Key_Right, MoveRight},   {Qt::Key_Home, MoveHome},        {Qt::Key_End, MoveEnd},
        {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown}};
    const auto action = actions.find(key.key());
    const bool isShift = (key.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier;
    return isShift && action != actions.end() ? std::optional(*action) : std::nullopt;
}

void ContactSheet::SetUpView()
{
    setAccessibleName(tr("Contact sheet"));
    setModel(model_);
    setItemDelegate(delegate_);
    setSelectionMode(ExtendedSelection);
    setSelectionRectVisible(true);
    setEditTriggers(NoEditTriggers);
    connect(this, &QListView::doubleClicked, large_, &LargeViewing::Open);
    connect(drag_, &SheetDrag::Dropped, this, &ContactSheet::Dropped);
}

void ContactSheet::SetUpWork()
{
    model_->SetMissing([this](const QString& file) {
        return thumbnails_->StateOf(file) == ThumbnailStore::State::Missing;
    });
    connect(thumbnails_, &ThumbnailStore::Changed, this, &ContactSheet::ThumbnailChanged);
    asking_.setSingleShot(true);
    connect(&asking_, &QTimer::timeout, this, &ContactSheet::AskForSeen);
    retry_.setSingleShot(true);
    connect(&retry_, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
}

void ContactSheet::ShowPictures(std::vector<qint32> ids)
{
    const std::vector<qint32> selected = GetSelected();
    const qint32 current = GetCurrent();
    const int row = currentIndex().row();
    const int top = visualRect(currentIndex()).top();
    isFilling_ = true;
    model_->Show(std::move(ids));
    std::vector<qint32> sorted = selected;
    std::ranges::sort(sorted);
    selectionModel()->select(SelectionOf(*model_, model_->RowsOf(sorted)),
                             QItemSelectionModel::ClearAndSelect);
    const std::vector<int> rows = model_->RowsOf({current});
    KeepPlace(rows.empty() ? std::min(row, model_->rowCount() - 1) : rows.front(), top);
    isFilling_ = false;
    AskAgain();
    if (GetCurrent() != current) {
        large_->Close();
        emit CurrentChanged();
    }
    if (GetSelected() != selected)
        emit SelectionChanged();
}

// The current picture stays where it is on the screen.
void ContactSheet::KeepPlace(int row, int top)
{
    if (row < 0)
        return;
    const QModelIndex now = model_->index(row);
    selectionModel()->setCurrentIndex(now, QItemSelectionModel::NoUpdate);
    verticalScrollBar()->setValue(verticalOffset() + visualRect(now).top() - top);
}

std::vector<qint32> ContactSheet::GetSelected() const
{
    std::vector<qint32> ids = RowsIn(selectionModel()->selection());
    for (qint32& each : ids)
        each = model_->GetIds()[std::size_t(each)];
    return ids;
}

qint32 ContactSheet::GetCurrent() const
{
    const int row = currentIndex().row();
    return row < 0 ? 0 : model_->GetIds()[std::size_t(row)];
}

bool ContactSheet::GoTo(qint32 id)
{
    const std::vector<int> rows = model_->RowsOf({id});
    if (rows.empty())
        return false;
    GoToRow(rows.front());
    return true;
}

void ContactSheet::Select(std::vector<qint32> ids)
{
    std::ranges::sort(ids);
    const std::vector<int> rows = model_->RowsOf(ids);
    if (rows.empty())
        return;
    GoToRow(rows.front());
    selectionModel()->select(SelectionOf(*model_, rows), QItemSelectionModel::ClearAndSelect);
}

// Not by setCurrentIndex, which heeds the keys that are held down.
void ContactSheet::GoToRow(int row)
{
    const QModelIndex index = model_->index(row);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

void ContactSheet::SetLinked(std::function<bool(const QString&)> isLinked)
{
    model_->SetLinked(std::move(isLinked));
    viewport()->update();
}

void ContactSheet::MarksChanged()
{
    model_->Forget();
    AskAgain();
}

void ContactSheet::SetCaptions(Captions captions)
{
    model_->SetCaptions(captions);
    viewport()->update();
}

void ContactSheet::AllowDragging(bool isAllowed)
{
    model_->SetDraggable(isAllowed);
    setDragEnabled(isAllowed);
    viewport()->setAcceptDrops(isAllowed);
}

// What is in the middle stays there.
void ContactSheet::SetSide(int side)
{
    if (side == side_ || side <= 0)
        return;
    const QModelIndex middle = indexAt(viewport()->rect().center());
    const bool isCurrentSeen = viewport()->rect().intersects(visualRect(currentIndex()));
    side_ = side;
    delegate_->SetSide(side);
    SetItemSize(delegate_->SizeWith(fontMetrics()));
    if (isCurrentSeen)
        scrollTo(currentIndex(), PositionAtCenter);
    else if (middle.isValid())
        scrollTo(middle, PositionAtCenter);
    viewport()->update();
}

void ContactSheet::ChangeSide(int steps)
{
    const auto next = steps > 0 ? std::ranges::upper_bound(sides, side_)
                                : std::ranges::lower_bound(sides, side_) - 1;
    if (next < sides.begin() || next >= sides.end())
        return;
    SetSide(*next);
    emit SideChanged(side_);
}

void ContactSheet::changeEvent(QEvent* event)
{
    EvenGrid::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        SetItemSize(delegate_->SizeWith(fontMetrics()));
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        AskAgain(); // files may have been changed by another program
}

// The toolkit's own way goes on from the last click or key, not from a picture that the program
// made the current one.
void ContactSheet::ExtendTo(int row)
{
    const int last = model_->rowCount() - 1;
    const int anchor = std::clamp(anchor_, 0, std::max(0, last));
    isExtending_ = true;
    const QItemSelection range(model_->index(std::min(anchor, row)),
                               model_->index(std::max(anchor, row)));
    selectionModel()->select(range, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(model_->index(row), QItemSelectionModel::NoUpdate);
    isExtending_ = false;
    scrollTo(model_->index(row));
}

void ContactSheet::mousePressEvent(QMouseEvent* event)
{
    const int anchor = anchor_;
    EvenGrid::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || event->modifiers() != Qt::ShiftModifier ||
        !index.isValid())
        return;
    anchor_ = anchor;
    ExtendTo(index.row());
}

void ContactSheet::keyPressEvent(QKeyEvent* event)
{
    const std::optional<CursorAction> extending = ExtendingActionOf(*event);
    if (extending && currentIndex().isValid())
        ExtendTo(moveCursor(*extending, event->modifiers()).row());
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        large_->Open();
    else if (IsZoomIn(*event))
        ChangeSide(1);
    else if (event->matches(QKeySequence::ZoomOut))
        ChangeSide(-1);
    else if (event->modifiers() == Qt::NoModifier && event->key() == Qt::Key_Space &&
             typed_.IsGoingOn())
        keyboardSearch(event->text());
    else
        return EvenGrid::keyPressEvent(event);
    event->accept();
}

void ContactSheet::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() != Qt::ControlModifier)
        return EvenGrid::wheelEvent(event);
    if (event->angleDelta().y() != 0)
        ChangeSide(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

void ContactSheet::keyboardSearch(const QString& text)
{
    RunGuarded([&] { FindTyped(text); });
}

// The same letter again and again goes from one to the next.
void ContactSheet::FindTyped(const QString& text)
{
    const bool goesOn = typed_.IsGoingOn();
    if (!goesOn && text.trimmed().isEmpty())
        return;
    typed_.Add(text);
    const int row = currentIndex().row();
    std::optional<int> found = model_->FindText(typed_.Get(), goesOn ? std::max(row, 0) : row + 1);
    if (!found && typed_.IsOneLetterRepeated())
        found = model_->FindText(typed_.Get().first(1), row + 1);
    if (found)
        GoToRow(*found);
    typed_.Found();
}

void ContactSheet::selectionChanged(const QItemSelection& selected, const QItemSelection& gone)
{
    EvenGrid::selectionChanged(selected, gone);
    if (!isFilling_)
        emit SelectionChanged();
}

void ContactSheet::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    EvenGrid::currentChanged(current, previous);
    if (!isExtending_)
        anchor_ = current.row();
    if (!isFilling_)
        emit CurrentChanged();
}

void ContactSheet::paintEvent(QPaintEvent* event)
{
    EvenGrid::paintEvent(event);
    if (model_->TakeFailure() && GeneralModule::IsAlbumOpen())
        retry_.start(retryPause);
    if (!asking_.isActive())
        asking_.start(0);
}

// What became current before there was a layout.
void ContactSheet::showEvent(QShowEvent* event)
{
    EvenGrid::showEvent(event);
    scrollTo(currentIndex());
}

void ContactSheet::startDrag(Qt::DropActions)
{
    drag_->Begin();
}

void ContactSheet::hideEvent(QHideEvent* event)
{
    EvenGrid::hideEvent(event);
    sideAsked_ = 0; // the work ends
}

void ContactSheet::AskAgain()
{
    thumbnails_->Recheck();
    sideAsked_ = 0;
    viewport()->update();
}

void ContactSheet::AskForSeen()
{
    if (!isVisible())
        return;
    const Rows rows = SeenRows();
    firstSeen_ = rows.first;
    QStringList files;
    for (int row = rows.first; row < rows.end; ++row)
        files += model_->CardAt(row).file;
    const int side = int(side_ * devicePixelRatioF());
    if (files == seen_ && side == sideAsked_)
        return;
    seen_ = files;
    sideAsked_ = side;
    files.removeAll(QString());
    thumbnails_->SetSide(side);
    thumbnails_->Want(files);
}

void ContactSheet::ThumbnailChanged(const QString& file)
{
    for (qsizetype i = seen_.indexOf(file); i >= 0; i = seen_.indexOf(file, i + 1))
        update(model_->index(firstSeen_ + int(i)));
}
