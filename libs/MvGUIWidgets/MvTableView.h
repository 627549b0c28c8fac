#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QTableView>

/// A table for panels: rows without a running number at their edge and never less than a few of them in sight.
class MVGUIWIDGETS_EXPORT MvTableView : public QTableView
{
    Q_OBJECT

public:
    /// Rows that updateToReasonableMinHeight() keeps in sight, even when there are fewer.
    static constexpr int reasonableRowCount = 4;

    explicit MvTableView(QWidget *parent = nullptr);
    ~MvTableView() override;

    /// Makes the view high enough for its header and a few rows of the default height.
    void updateToReasonableMinHeight();
};
