#include <fmt/format.h>

#include <algorithm>
#include <memory>

#include "ArgumentChecks.h"
#include "Command.h"
#include "Format.h"
#include "JsonArray.h"
#include "LogFiles.h"
#include "Text.h"
#include "trace/Parents.h"
#include "trace/Selection.h"
#include "trace/TraceJson.h"
#include "trace/TransactionCollection.h"
#include "trace/Waterfall.h"

namespace vmetrics {

namespace {

constexpr const char* kDescription =
    "Shows the steps of each transaction as a waterfall: when each began, how long it took, which "
    "failed, and which made the others wait.";

constexpr const char* kFooter =
    "Example: the last transaction of which a step failed, with the parents of its steps\n"
    "  vmetrics trace --failed --last 1 --links client.log agent.log.1.gz agent.log\n\n"
    "Exit status: 0 if a transaction is shown, 1 if there is none, 2 on wrong usage and for files\n"
    "that cannot be read. See vmetrics-trace(1).";

/// Milliseconds between the first and the last date.
constexpr std::uint64_t kLongest = 253402300799999;
/// More than fit into memory.
constexpr std::uint64_t kMost = 1000000000;

class Trace {
 public:
  void AddTo(CLI::App& command);
  int Run();

 private:
  void Read();
  std::vector<const Transaction*> Choose() const;
  bool IsIncluded(const Transaction& transaction) const;
  void WriteAll(const std::vector<const Transaction*>& chosen);
  bool ComplainOfMissing() const;

  LogFiles files_;
  Selection selection_;
  bool showsLinks_ = false;
  std::string format_;
  std::unique_ptr<TransactionCollection> collection_;
  std::size_t copies_ = 0;
};

void Trace::AddTo(CLI::App& command) {
  files_.AddTo(command);
  command
      .add_option("--transaction", selection_.transactions,
                  "Only the transaction of this ID; may be given several times")
      ->type_name("ID")
      ->allow_extra_args(false);
  command.add_flag("--failed", selection_.onlyFailed, "Only transactions of which a step failed");
  command
      .add_option("--slower-than", selection_.slowerThan,
                  "Only transactions that took more milliseconds than this")
      ->type_name("MS")
      ->check(WholeNumber(0, kLongest));
  command
      .add_option("--last", selection_.last,
                  "Only the last so many of them, by the end of their last step")
      ->type_name("N")
      ->check(WholeNumber(1, kMost));
  command.add_flag("--links", showsLinks_,
                   "Show the parent span of each step, in whatever transaction it is");
  AddFormat(command, format_, {"text", "json"});
}

int Trace::Run() {
  Read();
  const std::vector<const Transaction*> chosen = Choose();
  WriteAll(chosen);
  FinishOutput();
  if (copies_ > 0) {
    Complain(fmt::format("{} left out, as the logs hold the same once more",
                         copies_ == 1 ? "1 record" : fmt::format("{} records", copies_)));
  }
  if (!ComplainOfMissing() && chosen.empty()) {
    Complain("no transaction matches all that is asked for");
  }
  return files_.Conclude(chosen.empty() ? kFindings : kSuccess);
}

void Trace::Read() {
  collection_ = std::make_unique<TransactionCollection>(selection_);
  if (showsLinks_) {
    collection_->KeepAll();
  }
  LogReader::Hooks hooks;
  hooks.entry = [this](const LinePlace&, const LogEntry& entry) {
    if (entry.IsStep()) {
      collection_->Add(StepRecordOf(entry));
    }
  };
  files_.Read(std::move(hooks));
}

/// Those that are to be shown, by their first start.
std::vector<const Transaction*> Trace::Choose() const {
  std::vector<const Transaction*> candidates;
  for (const Transaction& transaction : collection_->Store().Transactions()) {
    if (selection_.MayInclude(transaction)) {
      candidates.push_back(&transaction);
    }
  }
  if (selection_.last) {
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const Transaction* a, const Transaction* b) { return a->lastEnd > b->lastEnd; });
  }
  std::vector<const Transaction*> chosen;
  for (const Transaction* candidate : candidates) {
    if (selection_.last && chosen.size() == *selection_.last) {
      break;
    }
    if (IsIncluded(*candidate)) {
      chosen.push_back(candidate);
    }
  }
  std::stable_sort(chosen.begin(), chosen.end(), [](const Transaction* a, const Transaction* b) {
    return a->firstStart < b->firstStart;
  });
  return chosen;
}

bool Trace::IsIncluded(const Transaction& transaction) const {
  const StepStore& store = collection_->Store();
  const bool isNamed =
      selection_.transactions.empty() || selection_.Names(store.TextOf(transaction.identifier));
  return isNamed && (!selection_.slowerThan ||
                     TimelineOf(store.StepsOf(transaction)).Duration() > *selection_.slowerThan);
}

void Trace::WriteAll(const std::vector<const Transaction*>& chosen) {
  const StepStore& store = collection_->Store();
  const std::unique_ptr<Parents> parents =
      showsLinks_ ? std::make_unique<Parents>(store, chosen) : nullptr;
  const WaterfallForm form = {OutputWidth(), HasUtf8Locale()};
  const bool isText = format_ == "text";
  JsonArray array;
  bool isFirst = true;
  for (const Transaction* transaction : chosen) {
    const Timeline timeline = TimelineOf(store.StepsOf(*transaction));
    copies_ += timeline.copies;
    const TransactionView view = {store, *transaction, timeline,
                                  collection_->IsIncomplete(*transaction), parents.get()};
    if (isText) {
      Write(isFirst ? "" : "\n");
      WriteWaterfall(view, form);
    } else {
      array.Add(JsonOf(view));
    }
    isFirst = false;
  }
  if (!isText) {
    array.Finish();
  }
}

/// Returns whether there was anything to say.
bool Trace::ComplainOfMissing() const {
  const StepStore& store = collection_->Store();
  bool isMissing = store.StepCount() == 0 && selection_.transactions.empty();
  if (isMissing) {
    Complain("the logs hold no step");
  }
  for (const std::string& wanted : selection_.transactions) {
    const bool isThere = std::any_of(store.Transactions().begin(), store.Transactions().end(),
                                     [&](const Transaction& transaction) {
                                       return store.TextOf(transaction.identifier) == wanted;
                                     });
    if (!isThere) {
      isMissing = true;
      Complain(fmt::format("the logs hold no step of transaction {}", Printable(wanted)));
    }
  }
  return isMissing;
}

}  // namespace

void AddTrace(CLI::App& program, Action& action) {
  CLI::App* command = program.add_subcommand("trace", kDescription);
  command->footer(kFooter);
  const auto trace = std::make_shared<Trace>();
  trace->AddTo(*command);
  command->callback([&action, trace] { action = [trace] { return trace->Run(); }; });
}

}  // namespace vmetrics
