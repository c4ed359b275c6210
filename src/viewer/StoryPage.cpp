// SPDX-License-Identifier: MIT
#include "viewer/StoryPage.h"

#include "core/ViewerFlags.h"
#include "platform/widgets/ClickLabel.h"
#include "platform/widgets/PictureBox.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

// Pictures stand out on a dark neutral ground, whatever the desktop's theme.
const QColor bandColor(0x1f, 0x20, 0x23);
const QColor inkOnBand(0xec, 0xea, 0xe5);
const QColor scrollBarOnBand(0x4a, 0x4c, 0x52);

constexpr double largeLegendPointSize = 18;    // read from across the room
constexpr double smallestLegendPointSize = 12; // a longer text is scrolled
constexpr int legendMargin = 14;               // logical pixels above and below the text
constexpr int sideMargin = 32;
constexpr double widestLegendEms = 52; // longer lines are hard to follow
// A legend takes 2, 4 or 7 lines, so that the band does not change with every paragraph, and never
// more than this part of the page.
constexpr std::array legendLines{2, 4, 7};
constexpr double largestLegendPart = 0.4;

QFont LegendFont(const QWidget* widget, double pointSize)
{
    QFont font = widget->font();
    font.setPointSizeF(pointSize);
    return font;
}

int TextHeight(const QFont& font, const QString& text, int width)
{
    constexpr qsizetype longest = 10'000; // characters; no screen has room for as many
    return QFontMetrics(font)
        .boundingRect(QRect(0, 0, width, 1), Qt::TextWordWrap, text.left(longest))
        .height();
}

} // namespace

StoryPage::StoryPage(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    CreateBoxes();
    CreateLegend();
    CreateNotice();
}

void StoryPage::CreateBoxes()
{
    for (int i = 0; i < mostPictures; ++i) {
        auto* box = new PictureBox(this);
        box->setObjectName(QStringLiteral("imgImage_%1").arg(i));
        box->hide();
        box->installEventFilter(this);
        connect(box, &PictureBox::Pressed, this,
                [this, i](Qt::MouseButton button) { emit PicturePressed(i, button); });
        imgImage_[std::size_t(i)] = box;
    }
    imgFullSize_ = new PictureBox(this);
    imgFullSize_->setObjectName(QStringLiteral("imgFullSize"));
    imgFullSize_->hide();
    connect(imgFullSize_, &PictureBox::Pressed, this, &StoryPage::FullSizePressed);
}

void StoryPage::CreateLegend()
{
    lblLegend_ = new ClickLabel;
    lblLegend_->setObjectName(QStringLiteral("lblLegend"));
    lblLegend_->setCursor(Qt::PointingHandCursor);
    lblLegend_->setContentsMargins(0, legendMargin, 0, legendMargin);
    legendArea_ = new QScrollArea(this);
    legendArea_->setObjectName(QStringLiteral("legendArea"));
    legendArea_->setFrameShape(QFrame::NoFrame);
    legendArea_->setFocusPolicy(Qt::NoFocus);
    legendArea_->setWidgetResizable(true);
    legendArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    legendArea_->setWidget(lblLegend_);
    SetLegendAlignment(Qt::AlignHCenter);
    connect(lblLegend_, &ClickLabel::Clicked, this, &StoryPage::LegendClicked);
}

void StoryPage::CreateNotice()
{
    lblNotice_ = new QLabel(this);
    lblNotice_->setObjectName(QStringLiteral("lblNotice"));
    lblNotice_->setTextFormat(Qt::PlainText);
    lblNotice_->setAlignment(Qt::AlignCenter);
    lblNotice_->setFont(LegendFont(this, legendPointSize_));
    lblNotice_->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette onBand = lblNotice_->palette();
    onBand.setColor(QPalette::WindowText, inkOnBand);
    lblNotice_->setPalette(onBand);
    lblNotice_->hide();
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
    legendPointSize_ = largeLegendPointSize;
}

void StoryPage::Arrange(const QString& text)
{
    legendHeight_ = LegendHeightFor(text);
    const int width = LegendWidth();
    legendArea_->setGeometry((this->width() - width) / 2, height() - legendHeight_, width,
                             legendHeight_);
    lblNotice_->setGeometry(0, 0, this->width(), height() - legendHeight_);
    FitLegend();
    update();
}

int StoryPage::LegendWidth() const
{
    const QFontMetrics metrics(LegendFont(this, legendPointSize_));
    return std::min(width() - 2 * sideMargin, int(widestLegendEms * metrics.height()));
}

int StoryPage::LegendHeightFor(const QString& text) const
{
    const QFont font = LegendFont(this, legendPointSize_);
    const int line = QFontMetrics(font).lineSpacing();
    const int wanted = TextHeight(font, text, LegendWidth());
    const int largest = std::max(line, int(height() * largestLegendPart) - 2 * legendMargin);
    int lines = legendLines.back();
    for (const int candidate : legendLines) {
        if (wanted <= candidate * line) {
            lines = candidate;
            break;
        }
    }
    return std::min(std::max(lines * line, std::min(wanted, largest)), largest) + 2 * legendMargin;
}

// A text that is a little too long for its room is written a little smaller; one that is much too
// long can be scrolled.
void StoryPage::FitLegend()
{
    const int room = legendHeight_ - 2 * legendMargin;
    double size = legendPointSize_;
    while (size > smallestLegendPointSize &&
           TextHeight(LegendFont(this, size), lblLegend_->text(), LegendWidth()) > room)
        size -= 1;
    lblLegend_->setFont(LegendFont(this, size));
}

ScreenShape StoryPage::GetShape(int lines) const
{
    const int band = std::max(1, height() - legendHeight_);
    return {size(), devicePixelRatioF(), float(band) * 100 / float(std::max(1, height())), lines};
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
    }
}

void StoryPage::ShowFullSize(const ShownPicture& picture, const QImage& image)
{
    for (PictureBox* box : imgImage_)
        box->hide();
    imgFullSize_->SetTag(picture.file);
    imgFullSize_->SetPicture(image);
    imgFullSize_->setGeometry(picture.place);
    imgFullSize_->show();
}

void StoryPage::LeaveFullSize()
{
    imgFullSize_->hide();
    imgFullSize_->SetTag({});
    imgFullSize_->SetPicture({});
    for (PictureBox* box : imgImage_)
        box->setVisible(!box->GetTag().isEmpty());
}

bool StoryPage::IsFullSize() const
{
    return !imgFullSize_->GetTag().isEmpty();
}

void StoryPage::SetNotice(const QString& text)
{
    lblNotice_->setText(text);
    lblNotice_->setVisible(!text.isEmpty());
}

void StoryPage::SetLegend(const QString& text)
{
    lblLegend_->setText(text);
    legendArea_->verticalScrollBar()->setValue(0);
    FitLegend();
}

void StoryPage::ShowFeedback(const QString& text)
{
    SetLegend(text);
    lblLegend_->repaint();
}

QString StoryPage::GetLegend() const
{
    return lblLegend_->text();
}

void StoryPage::SetLegendAlignment(Qt::Alignment alignment)
{
    lblLegend_->setAlignment(alignment | Qt::AlignVCenter);
}

void StoryPage::SetPictureToolTip(const QString& text)
{
    for (PictureBox* box : imgImage_)
        box->setToolTip(text);
}

bool StoryPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && (isDark_ || GeneralModule::AutoviewOn))
        return true;
    return QWidget::eventFilter(watched, event);
}

void StoryPage::resizeEvent(QResizeEvent*)
{
    Arrange(lblLegend_->text());
}

void StoryPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int band = height() - legendHeight_;
    painter.fillRect(0, 0, width(), band, bandColor);
    painter.fillRect(0, band, width(), legendHeight_, palette().window());
}
