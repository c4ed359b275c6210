// SPDX-License-Identifier: MIT
#include "platform/widgets/WindowSize.h"

#include "platform/shell/UserSettings.h"
#include "platform/widgets/ListBoxWheel.h"

#include <QEvent>
#include <QScreen>
#include <QStringList>
#include <QWidget>

namespace {

const QString application = QStringLiteral("QVRLumenark");
const QString section = QStringLiteral("Windows");

QSize ParseSize(const QString& text)
{
    const QStringList numbers = text.split(u'x');
    return numbers.size() == 2 ? QSize(numbers[0].toInt(), numbers[1].toInt()) : QSize();
}

class SizeKeeper : public QObject
{
public:
    explicit SizeKeeper(QWidget* window) : QObject(window), window_(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        // Not earlier: icons exist only now, and the album's labels may change later. The form's
        // own minimum size would cut off the captions of longer languages.
        if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
            window_->setMinimumSize(window_->minimumSize().expandedTo(window_->minimumSizeHint()));
        const bool full = window_->isMaximized() || window_->isFullScreen();
        if (event->type() == QEvent::Hide && !full) {
            WriteUserSetting(application, section, window_->objectName(),
                             QStringLiteral("%1x%2").arg(window_->width()).arg(window_->height()));
        }
        return false;
    }

private:
    QWidget* window_;
};

} // namespace

void KeepWindowSize(QWidget* window, QSize proposed)
{
    const QSize kept = ParseSize(ReadUserSetting(application, section, window->objectName()));
    const QSize room = window->screen()->availableSize() * 0.94;
    window->resize((kept.isEmpty() ? proposed : kept).boundedTo(room));
    new SizeKeeper(window);
    // Here because every window calls this.
    KeepWheelFromListBoxes();
}
