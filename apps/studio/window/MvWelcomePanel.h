// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFrame>

class QPushButton;

/// The ways to a calendar of one's own, above the page that is shown at the first start.
class MvWelcomePanel : public QFrame
{
    Q_OBJECT

public:
    explicit MvWelcomePanel(QWidget *parent = nullptr);

    /// Offers to go on with a calendar; not with an empty path.
    void setRecentFile(const QString &path);

Q_SIGNALS:
    void layoutRequested();
    void importRequested();
    void openRequested();
    void recentRequested(const QString &path);
    void closeRequested();

private:
    QPushButton *m_recent;
    QString m_recentPath;
};
