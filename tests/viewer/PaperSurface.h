// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/StorySurface.h"

#include <QFileInfo>
#include <QImage>
#include <QStringList>

// Holds what is drawn on it. A text takes room from the pictures.
struct PaperSurface : StorySurface
{
    QString title;
    QString legend;
    QString notice;
    QString place;
    std::vector<ShownPicture> pictures;
    std::vector<QImage> images;
    QSize size{1000, 700};
    qreal pixelRatio = 1;
    float band = 90;
    int changes = 0;

    void SetTitle(const QString& text) override { title = text; }
    void Arrange(const QString& text) override
    {
        band = ShapeFor(text, 1).maxTotalHeight;
        ++changes;
    }
    ScreenShape GetShape(int lines) const override { return {size, pixelRatio, band, lines}; }
    ScreenShape ShapeFor(const QString& text, int lines) const override
    {
        return {size, pixelRatio, text.isEmpty() ? 90.F : 60.F, lines};
    }
    void ShowPictures(const std::vector<ShownPicture>& shown, std::vector<QImage> decoded) override
    {
        pictures = shown;
        images = std::move(decoded);
    }
    std::shared_ptr<void> FadeIntoNext() override { return nullptr; }
    void ShowFullSize(const ShownPicture&, const QImage&) override {}
    void ShowFullSizePart(const QRect&, const QImage&, const QRectF&) override {}
    void LeaveFullSize() override {}
    void SetNotice(const QString& text) override { notice = text; }
    void SetPlace(const QString& text) override { place = text; }
    void SetLegend(const QString& text) override
    {
        legend = text;
        ++changes;
    }
    void ShowFeedback(const QString& text) override { SetLegend(text); }
    void SetLegendAlignment(Qt::Alignment) override {}
    void SetPictureToolTip(const QString&) override {}
    void LetPicturesTakeFocus(bool) override {}
    std::shared_ptr<void> BeginWork() override { return nullptr; }
};

inline QStringList NamesOf(const std::vector<ShownPicture>& pictures)
{
    QStringList names;
    for (const ShownPicture& picture : pictures)
        names += QFileInfo(picture.file).completeBaseName();
    return names;
}
