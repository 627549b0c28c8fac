// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QListWidget>

#include <functional>

class MvIdleImages;

/// Things to choose from as small pictures of a sheet with a name below: layouts, themes, templates, calendars. The
/// pictures arrive one by one, as long as the list is to be seen.
class MvPictureList : public QListWidget
{
    Q_OBJECT

public:
    /// Paints the sheet of a row; sizes in logical pixels, the image carries the ratio. A null image leaves it empty.
    using Make = std::function<QImage(int row, const QSize &sheet, double ratio)>;

    /// A picture's size in logical pixels.
    MvPictureList(const QSize &pictureSize, Make make, QWidget *parent = nullptr);
    ~MvPictureList() override;

    /// The description is told by tool tip and screen reader.
    void addPicture(const QString &id, const QString &name, const QString &description = {});
    QString idOf(int row) const;
    /// Empty when nothing is chosen.
    QString currentId() const;
    /// One that is not in the list leaves nothing chosen.
    void setCurrentId(const QString &id);

    /// Proportions of the paper that the pictures show.
    void setPaper(const QSizeF &size);
    /// Paints pictures again: all of them, or one. Without a picture its sheet stands empty meanwhile.
    void renew();
    void renew(int row);

    /// As high as its rows need, for places that scroll themselves.
    void setWholeHeight(bool whole);

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QImage emptyPicture() const;
    QRectF sheetRect() const;
    QImage makePicture(int row) const;
    void showPicture(int row);
    void shareWidth();
    void scrollToCurrentSoon();

    Make m_make;
    MvIdleImages *m_images;
    QSize m_pictureSize;
    QSizeF m_paper{2970, 2100};
    bool m_isWhole = false;
};
