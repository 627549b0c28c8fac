#pragma once

#include <QFrame>

/// The ways to a calendar of one's own, above the page that is shown at the first start.
class MvWelcomePanel : public QFrame
{
    Q_OBJECT

public:
    explicit MvWelcomePanel(QWidget *parent = nullptr);

Q_SIGNALS:
    void layoutRequested();
    void importRequested();
    void openRequested();
    void closeRequested();
};
