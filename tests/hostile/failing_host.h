#pragma once

#include "tests/support/silent_host/silent_host.h"

#include "host/file_controller.h"
#include "importer/legacy_template_importer.h"
#include "importer/reader_choice.h"

#include <QPointer>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

/// A host that fails in chosen ways, and otherwise does nothing like the silent one.
namespace failing {

enum class Making {
    Right,
    Nothing,    ///< create() gives null
    WrongClass, ///< create() gives an item of another class
};

/// Makes items, some of them wrongly.
class Factory : public ClassFactory
{
public:
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

    /// How items of a code are made; all others are made rightly.
    Making making = Making::Right;
    std::optional<KestTypes::ShapeType> of;
    /// Items that were asked for, by code.
    std::map<KestTypes::ShapeType, int> asked;
    /// The code that an item was made for.
    std::map<const Item*, KestTypes::ShapeType> madeFor;

private:
    silent::Factory m_rest;
};

/// A canvas that may have no factory, or may not keep what it is given.
class Canvas : public silent::Canvas
{
public:
    [[nodiscard]] ClassFactory* getClassFactory() override
    {
        return hasFactory ? &factory : nullptr;
    }
    void importItem(Item* item) override;
    void completeCanvasLoading() override { ++completed; }

    [[nodiscard]] int count(KestTypes::ShapeType type) const;

    bool hasFactory = true;
    bool deletesItems = false;
    int deleted = 0;
    int completed = 0;
    std::function<void()> duringImport; ///< called for every item
    Factory factory;
};

class EmptyDatasource : public silent::Datasource
{
public:
    [[nodiscard]] QList<QString> fields() const override { return {}; }
};

/// Data sources that are not there although they were made, or have no fields.
class Datasources : public DatasourceController
{
public:
    [[nodiscard]] int createDatasource(const QString&) override
    {
        ++made;
        return hasSources ? 1 : -1;
    }
    [[nodiscard]] TalDatasource* getDatasource(int) override
    {
        return hasSources ? &m_source : nullptr;
    }

    bool hasSources = true;
    int made = 0;

private:
    EmptyDatasource m_source;
};

class NoFiles : public FileController
{
public:
    bool checkSaveChanges(TalCanvasModel*, const QString&, bool) override { return true; }
    void saveImportedLabelAs(const QString&, const QString&, const QString&) override {}
    void emitLabelTypeLoadedSignal(QString) override {}
};

/// An import by the reader of this kind.
[[nodiscard]] bool import(LegacyTemplateImporter& importer, ReaderKind reader, const QString& path);

} // namespace failing
