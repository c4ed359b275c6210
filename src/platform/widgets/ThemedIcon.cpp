// SPDX-License-Identifier: MIT
#include "platform/widgets/ThemedIcon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// Resources of a static library must be initialised explicitly, outside any namespace.
static void LoadDrawings()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

QByteArray ReadDrawing(const QString& name)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QColor InkFor(QIcon::Mode mode)
{
    const QPalette palette = QApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

class ThemedIconEngine : public QIconEngine
{
public:
    explicit ThemedIconEngine(const QString& name) : name_(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        DrawIcon(*painter, name_, rect, InkFor(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new ThemedIconEngine(name_); }

private:
    QString name_;
};

} // namespace

QIcon ProgramIcon()
{
    LoadDrawings();
    return QIcon(QStringLiteral(":/icons/lumenark.svg"));
}

QIcon ThemedIcon(const QString& name)
{
    LoadDrawings();
    return QFile::exists(QStringLiteral(":/icons/%1.svg").arg(name))
               ? QIcon(new ThemedIconEngine(name))
               : QIcon();
}

void DrawIcon(QPainter& painter, const QString& name, const QRect& rect, const QColor& ink)
{
    const QByteArray drawing = ReadDrawing(name).replace("currentColor", ink.name().toLatin1());
    QSvgRenderer(drawing).render(&painter, rect);
}
