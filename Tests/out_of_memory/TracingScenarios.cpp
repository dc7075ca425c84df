#include <string>

#include "Host.h"
#include "Scenario.h"
#include "SpanIdentifierForm.h"

namespace {

constexpr char kInsert[] =
    "VMetrics::InsertRecord(int, char const*, char const*, char const*, char const*, int)";
constexpr char kParent[] = "VMetrics::GetCurrentParentSpanId()";
constexpr char kUuid[] = "VMetrics::GenerateUuid()";
constexpr char kStep[] = "a step whose name is too long for a short string";
constexpr char kLookUpParent[] = "ParentSpanId";

constexpr char kTransaction[] = "a transaction whose ID is too long for a short string";

/// Of the others that are in the table.
std::string firstOfTheOthers;

std::string FreshId() {
  static int number = 0;
  return "another transaction " + std::to_string(++number);
}

int Insert(int status, const std::string& id, const char* step = kStep,
           const char* parent = kLookUpParent) {
  return VMetrics::InsertRecord(status, id.c_str(), "an event that is too long for it", step,
                                parent, 0);
}

/// Fills the table until it is cleared, which is the one thing it tells; then up to `count`.
void FillTable(int count) {
  do {
    firstOfTheOthers = FreshId();
    Insert(0, firstOfTheOthers);
  } while (!TheHost().HasSaidAnything());
  for (int i = 1; i < count; ++i) {
    Insert(0, FreshId());
  }
  TheHost().Reset();
}

void OneOther() { FillTable(1); }
void HundredOthers() { FillTable(100); }

void OpenStep() {
  OneOther();
  Insert(0, kTransaction);
}

void OpenStepWithoutFile() {
  OpenStep();
  TheHost().RemoveSpanFile();
}

void OpenStepWithoutDirectory() {
  OpenStep();
  TheHost().RemoveSpanDirectory();
}

std::string Start() { return std::to_string(Insert(0, kTransaction)); }
std::string StartAnotherStep() { return std::to_string(Insert(0, kTransaction, kName)); }
std::string End() { return std::to_string(Insert(1, kTransaction)); }
std::string EndWithParent() { return std::to_string(Insert(1, kTransaction, kStep, kOldSpan)); }
std::string EndWithoutParent() { return std::to_string(Insert(1, kTransaction, kStep, "")); }
std::string InsertUnknownStatus() { return std::to_string(Insert(2, kTransaction)); }
std::string InsertNothing() { return std::to_string(VMetrics::InsertRecord(0, "", "", "", "", 0)); }

std::string StepOf(const std::string& id, const char* step) {
  switch (Insert(1, id, step)) {
    case VMETRICS_OK:
      return "step open";
    case VMETRICS_INVALID:
      return "no transaction";
    default:
      return "no step";
  }
}

std::string AskForStep() { return "; " + StepOf(kTransaction, kStep); }

std::string AskForBothSteps() { return AskForStep() + "; other " + StepOf(kTransaction, kName); }

std::string AskForOthersToo() {
  // First, as asking for a transaction that is not there makes it.
  const std::string others = "; others' " + StepOf(firstOfTheOthers, kStep);
  return others + AskForStep();
}

// Texts short enough not to ask for memory themselves.
std::string MakeIdentifier() {
  return IsSpanIdentifier(VMetrics::GenerateUuid()) ? "identifier" : "malformed";
}

std::string TakeParent() {
  const std::string parent = VMetrics::GetCurrentParentSpanId();
  return parent == kOldSpan ? "old span" : parent.substr(0, 15);
}

Scenario Tracing(const char* name, const char* function, std::string (*call)(), void (*prepare)(),
                 std::string (*inspect)(), const std::vector<std::string>& outcomes) {
  return {name, function, call, prepare, inspect, outcomes};
}

Scenario ChangingTable(Scenario scenario) {
  scenario.changesTable = true;
  return scenario;
}

std::vector<Scenario> InsertScenarios() {
  const std::string cleared = "; says ResourceClear";
  const std::string refused = "; says object is nullptr";
  return {
      ChangingTable(Tracing("StartOfFirstStep", kInsert, Start, OneOther, AskForStep,
                            {"bad_alloc; no step", "-9999" + refused + "; no transaction",
                             "bad_alloc; no step", "0; step open"})),
      Tracing("StartOfSecondStep", kInsert, StartAnotherStep, OpenStep, AskForBothSteps,
              {"bad_alloc; step open; other no step", "0; step open; other step open"}),
      Tracing("StartOfOpenStep", kInsert, Start, OpenStep, AskForStep,
              {"bad_alloc; step open", "0; step open"}),
      // The others are dropped before the new one is made.
      ChangingTable(Tracing("StartOfHundredAndFirst", kInsert, Start, HundredOthers,
                            AskForOthersToo,
                            {"bad_alloc; others' step open; no step",
                             "-9999" + cleared + refused + "; others' no step; no transaction",
                             "bad_alloc" + cleared + "; others' no step; no step",
                             "0" + cleared + "; others' no step; step open"})),
      // The identifier is in the file before the step's line is put together.
      Tracing(
          "End", kInsert, End, OpenStep, AskForStep,
          {"bad_alloc; step open", "bad_alloc; new span; step open", "0; new span; line; no step"}),
      Tracing(
          "EndWithParent", kInsert, EndWithParent, OpenStep, AskForStep,
          {"bad_alloc; step open", "bad_alloc; new span; step open", "0; new span; line; no step"}),
      Tracing(
          "EndWithoutParent", kInsert, EndWithoutParent, OpenStep, AskForStep,
          {"bad_alloc; step open", "bad_alloc; new span; step open", "0; new span; line; no step"}),
      // Between looking for the parent, which makes the file, and filling it no memory is asked
      // for.
      Tracing(
          "EndWithoutFile", kInsert, End, OpenStepWithoutFile, AskForStep,
          {"bad_alloc; step open", "bad_alloc; new span; step open", "0; new span; line; no step"}),
      Tracing("EndWithoutLock", kInsert, End, OpenStepWithoutDirectory, AskForStep,
              {"bad_alloc; step open", "0; line; no step"}),
      Tracing("EndOfStepNotStarted", kInsert, End, OneOther, AskForStep,
              {"bad_alloc; no step", "-9999" + refused + "; no transaction", "bad_alloc; no step",
               std::string("-9996; says stepName[") + kStep + "] has not startEvent; no step"}),
      Tracing("UnknownStatus", kInsert, InsertUnknownStatus, OpenStep, AskForStep,
              {"bad_alloc; step open", "-9996; says status[2] is not exist; step open"}),
      Tracing("EmptyTransactionId", kInsert, InsertNothing, OneOther, NothingToAsk,
              {"-9999" + refused}),
  };
}

}  // namespace

std::vector<Scenario> TracingScenarios() {
  std::vector<Scenario> all = InsertScenarios();
  all.insert(all.end(),
             {Tracing("ParentFromFile", kParent, TakeParent, Nothing, NothingToAsk,
                      NothingOr(std::string("old span; says parentSpanId = ") + kOldSpan)),
              Tracing("ParentWithoutFile", kParent, TakeParent, [] { TheHost().RemoveSpanFile(); },
                      NothingToAsk, {"; says parentSpanId = ; empty span file"}),
              Tracing("ParentWithoutLock", kParent, TakeParent,
                      [] { TheHost().RemoveSpanDirectory(); }, NothingToAsk, {"ParentSpanId"}),
              Tracing("Identifier", kUuid, MakeIdentifier, Nothing, NothingToAsk,
                      NothingOr("identifier"))});
  return all;
}
