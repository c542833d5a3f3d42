// The events as they come, and a line for commands: the interface without a page around it.
const log = document.getElementById("log");
const line = document.getElementById("line");
const answer = document.getElementById("answer");
const names = ["snapshot", "clock", "phone", "player", "journal", "settings", "setup", "audio",
               "script", "scene"];

const events = new EventSource("/api/events");
for (const name of names)
  events.addEventListener(name, (event) => {
    log.prepend(`${name} ${event.data.slice(0, 500)}\n`);
  });

line.addEventListener("change", async () => {
  const response = await fetch("/api/command", {
    method: "POST",
    headers: { "Content-Type": "application/json" },
    body: JSON.stringify({ line: line.value }),
  });
  answer.textContent = JSON.stringify(await response.json());
});
