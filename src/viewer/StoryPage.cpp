// SPDX-License-Identifier: MIT
#include "viewer/StoryPage.h"

#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/ElidedLabel.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/PassingNews.h"
#include "viewer/LargePictureBox.h"
#include "viewer/LegendArea.h"
#include "viewer/PageFade.h"
#include "viewer/ViewerFlags.h"

#include <QContextMenuEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace {

// Pictures stand out on a dark neutral ground, whatever the desktop's theme.
const QColor bandColor(0x1f, 0x20, 0x23);
const QColor inkOnBand(0xec, 0xea, 0xe5);
const QColor scrollBarOnBand(0x4a, 0x4c, 0x52);

constexpr int placeMargin = 10; // logical pixels, at the line's ends

} // namespace

StoryPage::StoryPage(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    CreateBoxes();
    legend_ = new LegendArea(this);
    connect(legend_, &LegendArea::Clicked, this, &StoryPage::LegendClicked);
    CreateNotice();
    CreatePlace();
    fade_ = new PageFade(this);
    news_ = new PassingNews(this);
}

void StoryPage::CreateBoxes()
{
    for (int i = 0; i < maxPictures; ++i) {
        auto* box = new PictureBox(this);
        box->setObjectName(QStringLiteral("imgImage_%1").arg(i));
        box->hide();
        box->installEventFilter(this);
        connect(box, &PictureBox::Pressed, this,
                [this, i](Qt::MouseButton button) { emit PicturePressed(i, button); });
        imgImage_[std::size_t(i)] = box;
    }
    imgFullSize_ = new LargePictureBox(this);
    imgFullSize_->setObjectName(QStringLiteral("imgFullSize"));
    imgFullSize_->hide();
    imgFullSize_->installEventFilter(this);
    connect(imgFullSize_, &PictureBox::Pressed, this, &StoryPage::FullSizePressed);
    connect(imgFullSize_, &LargePictureBox::Dragged, this, &StoryPage::FullSizeDragged);
}

void StoryPage::CreateNotice()
{
    lblNotice_ = new QLabel(this);
    lblNotice_->setObjectName(QStringLiteral("lblNotice"));
    lblNotice_->setTextFormat(Qt::PlainText);
    lblNotice_->setAlignment(Qt::AlignCenter);
    lblNotice_->setFont(legend_->GetFullFont());
    lblNotice_->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette onBand = lblNotice_->palette();
    onBand.setColor(QPalette::WindowText, inkOnBand);
    lblNotice_->setPalette(onBand);
    lblNotice_->hide();
}

// Small and faint, whatever the theme.
void StoryPage::CreatePlace()
{
    constexpr double pointSize = 8.5;
    constexpr double strength = 0.65; // still legible: 4.5 to 1 at least
    lblPlace_ = new ElidedLabel(this);
    lblPlace_->setObjectName(QStringLiteral("lblPlace"));
    lblPlace_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont small = lblPlace_->font();
    small.setPointSizeF(pointSize);
    lblPlace_->setFont(small);
    auto* faint = new QGraphicsOpacityEffect(lblPlace_);
    faint->setOpacity(strength);
    lblPlace_->setGraphicsEffect(faint);
    lblPlace_->setVisible(IsPlaceShown());
}

bool& StoryPage::IsPlaceShown() const
{
    return isDark_ ? GeneralModule::PlaceShownOnWholeScreen : GeneralModule::PlaceShown;
}

void StoryPage::SwitchPlace()
{
    IsPlaceShown() = !IsPlaceShown();
    lblPlace_->setVisible(IsPlaceShown());
    PlaceLegend();
}

void StoryPage::Darken()
{
    isDark_ = true;
    QPalette dark = palette();
    dark.setColor(QPalette::Window, bandColor);
    dark.setColor(QPalette::WindowText, inkOnBand);
    dark.setColor(QPalette::Base, bandColor);
    dark.setColor(QPalette::Button, scrollBarOnBand);
    setPalette(dark);
    legend_->Enlarge();
    lblPlace_->setVisible(IsPlaceShown());
}

void StoryPage::SetTitle(const QString& title)
{
    window()->setWindowTitle(AsWindowTitle(title));
}

void StoryPage::Arrange(const QString& text)
{
    legendSize_ = legend_->SizeOn(size(), text);
    bandHeight_ = height() - legendSize_.height();
    PlaceLegend();
    lblNotice_->setGeometry(0, 0, width(), bandHeight_);
    update();
}

// The line below the text stands in the text's margin, so that pictures and text stay where they
// are with and without it.
void StoryPage::PlaceLegend()
{
    const int footer = IsPlaceShown() ? lblPlace_->sizeHint().height() : 0;
    legend_->Place({QPoint((width() - legendSize_.width()) / 2, bandHeight_), legendSize_}, footer);
    lblPlace_->setGeometry(placeMargin, height() - footer, width() - 2 * placeMargin, footer);
}

ScreenShape StoryPage::GetShape(int lines) const
{
    return ShapeWith(bandHeight_, lines);
}

ScreenShape StoryPage::ShapeFor(const QString& text, int lines) const
{
    return ShapeWith(height() - legend_->SizeOn(size(), text).height(), lines);
}

ScreenShape StoryPage::ShapeWith(int bandHeight, int lines) const
{
    const float part = float(std::max(1, bandHeight)) * 100 / float(std::max(1, height()));
    return {size(), devicePixelRatioF(), part, lines};
}

void StoryPage::ShowPictures(const std::vector<ShownPicture>& pictures, std::vector<QImage> images)
{
    LeaveFullSize();
    for (std::size_t i = 0; i < imgImage_.size(); ++i) {
        PictureBox* box = imgImage_[i];
        const bool used = i < pictures.size();
        box->SetTag(used ? pictures[i].file : QString());
        box->SetPicture(used ? std::move(images[i]) : QImage());
        if (used)
            box->setGeometry(pictures[i].place);
        box->setVisible(used);
        box->setFocusPolicy(used && canTakeFocus_ ? Qt::TabFocus : Qt::NoFocus);
    }
    fade_->Begin({0, 0, width(), bandHeight_});
}

std::shared_ptr<void> StoryPage::FadeIntoNext()
{
    std::vector<PageFade::Picture> pictures;
    for (const PictureBox* box : imgImage_) {
        if (box->isVisible() && !box->GetPicture().isNull())
            pictures.push_back({box->geometry(), box->GetPicture()});
    }
    fade_->Keep(std::move(pictures), bandColor);
    // The page may be closed meanwhile.
    return std::shared_ptr<void>(nullptr, [fade = QPointer(fade_)](void*) {
        if (fade)
            fade->Forget();
    });
}

void StoryPage::ShowFullSize(const ShownPicture& picture, const QImage& image)
{
    fade_->End();
    for (PictureBox* box : imgImage_)
        box->hide();
    imgFullSize_->SetTag(picture.file);
    imgFullSize_->SetPicture(image);
    imgFullSize_->setGeometry(picture.place);
    imgFullSize_->SetDraggable(false);
    imgFullSize_->show();
}

void StoryPage::ShowFullSizePart(const QRect& place, const QImage& image, const QRectF& part)
{
    imgFullSize_->SetPart(image, part);
    imgFullSize_->setGeometry(place);
    imgFullSize_->SetDraggable(true);
}

void StoryPage::LeaveFullSize()
{
    imgFullSize_->hide();
    imgFullSize_->SetTag({});
    imgFullSize_->SetPicture({});
    for (PictureBox* box : imgImage_)
        box->setVisible(!box->GetTag().isEmpty());
}

void StoryPage::SetNotice(const QString& text)
{
    lblNotice_->setText(text);
    lblNotice_->setVisible(!text.isEmpty());
}

void StoryPage::SetPlace(const QString& text)
{
    lblPlace_->setText(text);
}

void StoryPage::SetLegend(const QString& text)
{
    legend_->SetText(text);
}

void StoryPage::ShowFeedback(const QString& text)
{
    legend_->ShowAtOnce(text);
}

void StoryPage::SetLegendAlignment(Qt::Alignment alignment)
{
    legend_->SetTextAlignment(alignment);
}

void StoryPage::SetPictureToolTip(const QString& text)
{
    for (PictureBox* box : imgImage_)
        box->setToolTip(text);
}

int StoryPage::GetPictureMeant() const
{
    const auto find = [this](const auto& isMeant) {
        const auto box = std::find_if(imgImage_.begin(), imgImage_.end(), isMeant);
        return box == imgImage_.end() ? -1 : int(box - imgImage_.begin());
    };
    const QWidget* focus = window()->focusWidget();
    const int focused = find([focus](const PictureBox* box) { return box == focus; });
    return focused >= 0 ? focused : find([](const PictureBox* box) { return box->underMouse(); });
}

QString StoryPage::GetFileMeant() const
{
    if (imgFullSize_->isVisible())
        return imgFullSize_->GetTag();
    const bool isOnlyOne = imgImage_[0]->isVisible() && !imgImage_[1]->isVisible();
    const int meant = isOnlyOne ? 0 : GetPictureMeant();
    return meant < 0 ? QString() : imgImage_[std::size_t(meant)]->GetTag();
}

void StoryPage::ShowNews(const QString& text)
{
    news_->Show(text, {0, 0, width(), bandHeight_});
}

std::shared_ptr<void> StoryPage::BeginWork()
{
    return std::make_shared<BusyPointer>();
}

bool StoryPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && (isDark_ || GeneralModule::AutoviewOn))
        return true;
    // The press of a button on a picture has had its effect.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Mouse)
        return true;
    return QWidget::eventFilter(watched, event);
}

void StoryPage::resizeEvent(QResizeEvent*)
{
    fade_->End();
    Arrange(legend_->GetText());
}

void StoryPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), bandHeight_, bandColor);
    painter.fillRect(0, bandHeight_, width(), height() - bandHeight_, palette().window());
}

void StoryPage::wheelEvent(QWheelEvent* event)
{
    if (event->position().y() >= bandHeight_)
        return event->ignore();
    event->accept();
    const int step = wheel_.Take(*event);
    if (step == 0)
        return;
    if (imgFullSize_->isVisible())
        emit FullSizeTurned(step > 0, event->position());
    else
        emit WheelTurned(step > 0);
}
