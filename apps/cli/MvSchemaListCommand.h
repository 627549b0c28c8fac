#pragma once

#include "MvCliCommand.h"

#include "MvXML/MvLocalizedText.h"

/// "layouts" and "colors": what can be given to "render".
class MvSchemaListCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvSchemaListCommand)

public:
    enum class Kind {
        Layouts,
        Colors,
    };

    /// A schema's id and its German name.
    struct Schema
    {
        QString id;
        QString name;
        QString description;   // of layouts
        MvLocalizedText names; // any of which a user may type
    };

    explicit MvSchemaListCommand(Kind kind)
        : m_kind(kind)
    {}

    /// What there is, in the order in which it is offered.
    static QList<Schema> schemata(Kind kind);
    /// The id of the schema with that id or name, whatever the case; empty when there is none.
    static QString find(Kind kind, const QString &idOrName);

    QString name() const override;
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    Kind m_kind;
};
