// While the server is away nothing can be done, and nothing looks as if it could.
const parts = ["music", "time", "settings", "setup", "script"];

export class Away {
  constructor(connection) {
    connection.addEventListener("status", () => {
      const isAway = ["gone", "refused"].includes(connection.status);
      for (const name of parts) document.getElementById(`panel-${name}`).inert = isAway;
      document.getElementById("device").inert = isAway;
    });
  }
}
