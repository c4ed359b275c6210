// SPDX-License-Identifier: MIT
#include "gallery/SheetPicture.h"

#include "platform/widgets/FittedPicture.h"

#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

// Those of the story's pages: pictures stand out on a dark neutral ground.
const QColor captionGround(0x1f, 0x20, 0x23);
const QColor captionInk(0xec, 0xea, 0xe5);

constexpr int captionMargin = 6; // logical pixels

} // namespace

SheetPicture::SheetPicture(QWidget* window)
    : QWidget(window), picture_(new FittedPicture(this)), lblCaption_(new QLabel(this))
{
    setFocusPolicy(Qt::StrongFocus);
    lblCaption_->setObjectName(QStringLiteral("lblCaption"));
    lblCaption_->setTextFormat(Qt::PlainText);
    lblCaption_->setAlignment(Qt::AlignCenter);
    lblCaption_->setWordWrap(true);
    lblCaption_->setMargin(captionMargin);
    lblCaption_->setAutoFillBackground(true);
    QPalette dark = lblCaption_->palette();
    dark.setColor(QPalette::Window, captionGround);
    dark.setColor(QPalette::WindowText, captionInk);
    lblCaption_->setPalette(dark);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(picture_, 1);
    column->addWidget(lblCaption_);
    setGeometry(window->rect());
    window->installEventFilter(this);
}

void SheetPicture::Show(const QString& file, const QString& path, const QString& caption)
{
    lblCaption_->setText(caption);
    setAccessibleName(caption);
    show();
    raise();
    setFocus();
    layout()->activate(); // the picture is decoded for the size that it gets
    picture_->ShowPicture(file, path);
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void SheetPicture::Expect(const QString& path)
{
    picture_->Expect(path);
}

// Keys of the window's menus must not work behind the picture.
bool SheetPicture::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool SheetPicture::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

// Every key ends here: what it would do to the window behind is not seen.
void SheetPicture::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        return emit StepWanted(-1);
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return emit StepWanted(1);
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return emit BackWanted();
    default:
        break;
    }
}

void SheetPicture::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void SheetPicture::mouseDoubleClickEvent(QMouseEvent*)
{
    emit BackWanted();
}

void SheetPicture::wheelEvent(QWheelEvent* event)
{
    const int turn = event->angleDelta().y();
    if (turn != 0)
        emit StepWanted(turn > 0 ? -1 : 1);
    event->accept();
}
