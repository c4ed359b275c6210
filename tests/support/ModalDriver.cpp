// SPDX-License-Identifier: MIT
#include "support/ModalDriver.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int patience = 20000; // milliseconds until a window that does not come fails the test

bool IsMeant(const QWidget* window, const QString& name)
{
    return window && (window->objectName() == name || window->inherits(qPrintable(name)));
}

void Poll(const QString& name, const std::function<void(QWidget&)>& action, bool closesItself,
          QDeadlineTimer deadline)
{
    QPointer<QWidget> window = QApplication::activeModalWidget();
    if (!IsMeant(window, name)) {
        if (deadline.hasExpired()) {
            QTest::qFail(qPrintable("window never came: " + name), __FILE__, __LINE__);
            if (window)
                window->close();
            return;
        }
        QTimer::singleShot(5, qApp, [=] { Poll(name, action, closesItself, deadline); });
        return;
    }
    action(*window);
    if (window && window->isVisible() && QApplication::activeModalWidget() == window) {
        if (closesItself)
            QTest::qFail(qPrintable("window stayed open: " + name), __FILE__, __LINE__);
        window->close();
    }
}

} // namespace

void WhenModal(const QString& name, const std::function<void(QWidget&)>& action, bool closesItself)
{
    QTimer::singleShot(0, qApp,
                       [=] { Poll(name, action, closesItself, QDeadlineTimer(patience)); });
}

void Click(QWidget& window, const QString& control)
{
    QTest::mouseClick(&Find<QWidget>(window, control), Qt::LeftButton);
}

void TurnWheel(QWidget& control, double notches)
{
    const QPointF middle = QRectF(control.rect()).center();
    const QPoint turn(0, int(int(QWheelEvent::DefaultDeltasPerStep) * notches));
    QWheelEvent event(middle, control.mapToGlobal(middle), {}, turn, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // others do not go on to parents
    qApp->notify(&control, &event);
}

void ClickLine(QListWidget& list, int row, bool twice)
{
    list.scrollToItem(list.item(row));
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    if (twice)
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

QMenu& OpenMenuOf(QListWidget& list)
{
    const QPoint place = list.visualItemRect(list.item(0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list.viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        qFatal("no context menu");
    return *menu;
}

bool DropFiles(QWidget& window, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls += path.contains("://") ? QUrl(path) : QUrl::fromLocalFile(path);
    data.setUrls(urls);
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QApplication::processEvents();
    return true;
}

void DropLine(QListWidget& list, int from, int onto, bool isLowerHalf)
{
    list.setCurrentRow(from);
    const QRect target = list.visualItemRect(list.item(onto));
    const int edge = isLowerHalf ? target.bottom() - 1 : target.top() + 1;
    const QMimeData row;
    QDropEvent drop(QPointF(target.center().x(), edge), Qt::MoveAction, &row, Qt::LeftButton, {});
    // Past the application, which passes on only what a drag under way has begun.
    for (QObject* child : list.children()) {
        if (child->inherits("RowDrag"))
            child->eventFilter(list.viewport(), &drop);
    }
    QCoreApplication::processEvents();
}

QStringList Lines(const QListWidget& list)
{
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
        lines += (row == list.currentRow() ? "*" : "") + list.item(row)->text();
    return lines;
}
