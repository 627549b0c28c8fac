// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"

#include <QHash>
#include <QImage>
#include <QObject>

#include <optional>

class MvFotoPages;
class MvScreenFotos;

/// The pages of a document as a print preview shows them: recorded, and with photos in a size for the screen, made
/// ready bit by bit while the program answers. Painting them all is a matter of moments then.
class MvPrintPages : public QObject
{
    Q_OBJECT

public:
    explicit MvPrintPages(const MvCalendarDocument &document, QObject *parent = nullptr);
    ~MvPrintPages() override;

    /// Once; ready() follows, not before this returns.
    void start();
    /// Paints what is ready. Must not outlive the object.
    MvPageSource pageSource() const;

Q_SIGNALS:
    void progress(int done, int total);
    void ready();

private:
    void recordNext();
    void recordPage(int number);
    MvPaintRecording asPixels(const MvPaintRecording &recording) const;
    void takeFoto(const QString &path);
    void tellProgress();
    void paintPage(QPainter &painter, int number) const;

    const MvCalendarDocument m_document;
    QList<std::optional<MvPaintRecording>> m_recordings;
    QHash<QString, QImage> m_images; // of pages, by path; null where a file cannot be read
    QSize m_fotoBounds;
    MvScreenFotos *m_fotos;
    MvFotoPages *m_entryFotos;
    int m_pathCount = 0;
    int m_recordedCount = 0;
    int m_next = 0;
};
