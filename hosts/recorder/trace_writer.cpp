#include "recorder/trace_writer.h"

#include <QIODevice>

using namespace Qt::StringLiterals;

namespace recorder {

TraceWriter::TraceWriter(QIODevice& out)
    : m_out(out)
{}

void TraceWriter::start(const QString& fileName, const QString& reader)
{
    constexpr int formatVersion = 1;
    writeLine({{"trace", formatVersion}, {"file", fileName}, {"reader", reader}});
}

void TraceWriter::call(const QString& target, const char* name, const Values& arguments)
{
    writeLine({{"on", target},
               {"call", QString::fromLatin1(name)},
               {"args", TraceValue::array(arguments)}});
}

void TraceWriter::call(const QString& target, const char* name, const Values& arguments,
                       const TraceValue& returned)
{
    writeLine({{"on", target},
               {"call", QString::fromLatin1(name)},
               {"args", TraceValue::array(arguments)},
               {"returns", returned}});
}

void TraceWriter::signal(const char* name)
{
    writeLine({{"signal", QString::fromLatin1(name)}});
}

void TraceWriter::log(const QString& level, const QString& source, const QString& function,
                      const QString& message)
{
    writeLine({{"log", level}, {"source", source}, {"function", function}, {"message", message}});
}

void TraceWriter::itemState(const ItemState& state)
{
    std::vector<TraceValue::Field> fields{{"item", itemTarget(state.number)},
                                          {"type", state.type},
                                          {"imported", state.imported},
                                          {"pos", state.position},
                                          {"z", state.z},
                                          {"movable", state.movable}};
    if (state.html) {
        fields.emplace_back("html", *state.html);
    }
    writeLine(fields);
}

void TraceWriter::end(bool result)
{
    writeLine({{"result", result}});
}

void TraceWriter::writeLine(const std::vector<TraceValue::Field>& fields)
{
    m_out.write(TraceValue::object(fields).json() + '\n');
}

QString itemTarget(int number)
{
    return u"item:%1"_s.arg(number);
}

} // namespace recorder
