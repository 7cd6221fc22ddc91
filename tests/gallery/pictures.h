#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <vector>

/// One picture of the gallery: its file name without ending, and how it is drawn.
struct sPicture
{
    QString m_sName;
    std::function<QImage()> m_Draw;
};

/// Fixes what the pictures depend on: style, font and palette. Called before the first is drawn.
void PrepareGallery();

/// Every control in every state, groups, containers at several widths, the preview strip and its
/// message, in a light and a dark palette and at two scales.
std::vector<sPicture> GalleryPictures();
