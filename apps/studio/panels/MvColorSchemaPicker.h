#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"

#include <QListWidget>

/// The colour schemas as swatches with their names. A schema that none of them is shows as the user's own, first in
/// the list.
class MvColorSchemaPicker : public QListWidget
{
    Q_OBJECT

public:
    explicit MvColorSchemaPicker(QWidget *parent = nullptr);

    /// Marks the schema, whose grid does not count; emits nothing.
    void setColorSchema(const MvCalendariumColorSchema &schema);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose a schema of the list.
    void colorSchemaChosen(const MvCalendariumColorSchema &schema);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addSchema(int row, const MvCalendariumColorSchema &schema, const QString &name, const QString &objectId);
    QIcon swatch(const MvCalendariumColorSchema &schema) const;
    void adaptHeight();
    void onRowChanged(int row);

    QList<MvCalendariumColorSchema> m_schemata; // one per row
    bool m_hasOwn = false;                      // the first row is the user's own
    bool m_isMarking = false;
};
