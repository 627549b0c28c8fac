// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFrame>

class QLabel;

/// A large place to drop photos or a folder on, with buttons for those who rather choose them.
class MvStartDropZone : public QFrame
{
    Q_OBJECT

public:
    explicit MvStartDropZone(QWidget *parent = nullptr);

    /// Says below what becomes of the photos.
    void setHint(const QString &text);

Q_SIGNALS:
    /// Files and folders, unread.
    void dropped(const QStringList &paths);
    void filesRequested();
    void folderRequested();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setOffered(bool offered);

    QLabel *m_hint;
    bool m_isOffered = false;
};
