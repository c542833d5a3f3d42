#include <atomic>

#include "simulator/serve/Api.h"
#include "simulator/serve/JsonBody.h"
#include "simulator/serve/Supervisor.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr std::size_t longestPage = 40;

void requirePage(const std::string& page) {
  const auto isAllowed = [](char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) || letter == '-';
  };
  if (page.empty() || page.size() > longestPage ||
      !std::all_of(page.begin(), page.end(), isAllowed))
    throw RequestError(400, "expected page to be up to 40 letters, digits and -");
}

// Pages that do not name themselves.
std::string newPage() {
  static std::atomic<long> count = 0;
  return "page-" + std::to_string(++count);
}

void subscribe(const Subscriber& subscriber, Inbox& inbox) {
  inbox.ask([&subscriber](Supervisor& supervisor, const Inbox::Promise& promise) {
    supervisor.subscribe(subscriber, promise);
  });
}

// One piece of the stream; false when it is over.
bool sendNews(const Subscriber& subscriber, Inbox& inbox, int socket, httplib::DataSink& sink) {
  switch (subscriber->wait(socket)) {
    case EventQueue::News::events: {
      const std::string events = subscriber->take();
      return sink.write(events.data(), events.size());
    }
    case EventQueue::News::behind:
      subscribe(subscriber, inbox);
      return true;
    case EventQueue::News::closed:
    case EventQueue::News::readerGone:
      return false;
  }
  return false;
}

void stream(const Router::Visit& visit, Inbox& inbox) {
  std::string page = visit.request.get_param_value("page");
  if (visit.request.has_param("page"))
    requirePage(page);
  else
    page = newPage();
  const auto subscriber = std::make_shared<EventQueue>(page);
  subscribe(subscriber, inbox);
  visit.response.set_chunked_content_provider(
      "text/event-stream",
      [subscriber, &inbox, socket = HttpServer::connection()](std::size_t,
                                                              httplib::DataSink& sink) {
        try {
          return sendNews(subscriber, inbox, socket, sink);
        } catch (const RequestError&) {
          return false;  // the program ends
        }
      },
      [subscriber, &inbox](bool) {
        inbox.tell([subscriber](Supervisor& supervisor) { supervisor.unsubscribe(subscriber); });
      });
}

Supervisor::Sound soundFrom(const JsonBody& body) {
  const bool takes = body.flag("take").value_or(false);
  const bool releases = body.flag("release").value_or(false);
  if (takes && releases) throw RequestError(400, "expected either take or release");
  if (takes) return Supervisor::Sound::take;
  return releases ? Supervisor::Sound::release : Supervisor::Sound::ask;
}

}  // namespace

void addEventRoutes(Router& router, const ApiParts& parts) {
  Inbox& inbox = parts.inbox;
  router.add("GET", "/api/events", [&inbox](const Router::Visit& visit) {
    if (visit.request.method == "HEAD") throw RequestError(405, "expected GET, found HEAD");
    stream(visit, inbox);
  });
  router.addText("POST", "/api/audio-owner", [&inbox](const Router::Visit& visit) {
    const JsonBody body(visit.request.body, {"page", "take", "release"});
    const std::string page = body.text("page", longestPage);
    requirePage(page);
    const Supervisor::Sound how = soundFrom(body);
    return inbox.ask([&page, how](Supervisor& supervisor, const Inbox::Promise& promise) {
      answer(promise, supervisor.chooseSound(page, how));
    });
  });
}

}  // namespace sim
